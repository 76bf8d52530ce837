#pragma once

#include <TarnMediaLib/commands/Command.h>
#include <TarnMediaLib/parameters/Parameter.h>

/// A command of the host's own: adds a key frame to a numeric parameter.
///
/// This is all that a host writes to make an edit of its own undoable. `time` lies on the clock of
/// the parameter's key frames.
class AddNumberCmd : public tarn::Command
{
public:
    static boost::shared_ptr<AddNumberCmd> create(
        boost::shared_ptr<tarn::Parameter<double> const> const& parameter, long long time,
        double value);

    AddNumberCmd* clone() const override;
    /// @throws KeyFrameException when there is a key frame at that time
    bool execute(tarn::CommandHandler* handler) override;
    bool unexecute(tarn::CommandHandler* handler) override;
    void xmlName(tarn::XMLable::Options& options) const override;

private:
    AddNumberCmd(boost::shared_ptr<tarn::Parameter<double>> const& parameter, long long time,
                 double value);

    boost::shared_ptr<tarn::Parameter<double>> m_parameter;
    long long m_time;
    double m_value;
};
