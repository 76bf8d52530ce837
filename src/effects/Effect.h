#pragma once

#include "datatypes/Cloneable.h"
#include "datatypes/Export.h"
#include "datatypes/Subject.h"
#include "datatypes/XMLable.h"
#include "effects/EffectsFwd.h"
#include "parameters/Parametric.h"
#include "project/SubProject.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <list>
#include <string>

namespace tarn {

/// A named filter that the host applies when it renders, described by its animated parameters.
///
/// Its parameters are read at effect time: that of the media it is on, through the converter the
/// media sets, and otherwise the timeline's. Its parameters are shown as they are stored; an edge
/// modification that names one acts where the media's values are read, on the media's clock.
class TARN_API Effect : public SubProject,
                        public Cloneable,
                        public XMLable,
                        public Parametric,
                        public Subject
{
public:
    /// An effect without a name.
    explicit Effect(boost::weak_ptr<ThreadSafe const> const& project);
    Effect(std::string const& name, boost::weak_ptr<ThreadSafe const> const& project);
    Effect& operator=(Effect const& other) = delete;
    ~Effect() override;

    std::string description() const override;
    /// A copy that is on nothing yet: it has no parent and no converter.
    Effect* clone() const override = 0;

    /// Effect time is the time of the key frames.
    double toParameterTime(double time) const override;
    double fromParameterTime(double time) const override;
    /// From timeline time to effect time. Read lock.
    long long fromGlobalToParametricTime(long long time) const override;
    /// 0, whatever parameters() lists, unless a class says otherwise.
    int numParameters() const override;
    /// In a fixed order and without null pointers.
    virtual std::list<boost::shared_ptr<ParameterInterface>> parameters() const = 0;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    /// Follows parameters(), and writes its element also when there are none.
    void xmlBody(XMLable::Options& options, int indent) const override;

    std::string const& name() const { return m_name; }

    /// For a host that wants to note what an effect is on; the library leaves it empty.
    void setParentEffectable(boost::weak_ptr<Effectable> const& parent);
    boost::weak_ptr<Effectable> parentEffectable() const { return m_parentEffectable; }

    /// Not owned; null makes effect time the timeline's. Takes no lock.
    void setEffectTimeConverter(EffectTimeConverter* converter);
    EffectTimeConverter* effectTimeConverter() const { return m_effectTimeConverter; }

protected:
    Effect(Effect const& other);

private:
    std::string m_name;
    boost::weak_ptr<Effectable> m_parentEffectable;
    EffectTimeConverter* m_effectTimeConverter;
};

}  // namespace tarn
