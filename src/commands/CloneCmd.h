#pragma once

#include "commands/Command.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Makes one clone and keeps it, so that redo brings back the same object. Made for T = Media.
template <class T>
class TARN_API CloneCmd : public Command
{
public:
    explicit CloneCmd(boost::shared_ptr<T const> const& cloneable);
    static boost::shared_ptr<CloneCmd<T>> create(boost::shared_ptr<T const> const& cloneable);

    CloneCmd<T>* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

    /// The clone; empty until executed.
    boost::shared_ptr<T> const& result() const { return m_clone; }

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

private:
    boost::shared_ptr<T const> m_cloneable;
    boost::shared_ptr<T> m_clone;
};

extern template class TARN_API CloneCmd<Media>;

}  // namespace tarn
