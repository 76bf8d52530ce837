#pragma once

#include "datatypes/Cloneable.h"
#include "datatypes/Export.h"
#include "datatypes/Range.h"
#include "datatypes/Subject.h"
#include "datatypes/XMLable.h"
#include "parameters/ParametersFwd.h"

#include <boost/shared_ptr.hpp>

#include <string>
#include <vector>

namespace tarn {

/// A parameter of any type: a named, ordered set of key frames, at most one at a time.
///
/// Times count on the clock of the parameter's owner (its parameter time). Mutators take no lock,
/// as they run inside commands, and end with a notification. A time without a key frame, or one
/// that is taken, throws KeyFrameException and leaves the parameter as it was.
class TARN_API ParameterInterface : public Cloneable, public XMLable, public Subject
{
public:
    /// A deep copy, made under the read lock, without observers.
    ParameterInterface* clone() const override = 0;
    /// The parameter's name.
    virtual std::string ident() const = 0;
    /// From the first key frame to the last. @throws KeyFrameException(0) when there is none
    virtual Range<long long> keyframeRange() const = 0;
    /// Shifts all key frames, which become new ones, and notifies once.
    /// @throws KeyFrameException when a time would leave the 64-bit range; nothing is shifted then
    virtual void moveKeyframes(long long delta) = 0;
    virtual int numKeyFrames() const = 0;
    /// Ascending.
    virtual boost::shared_ptr<std::vector<long long>> keyframeTimes() const = 0;
    /// The frame keeps its identity. `from` is checked first, so a frame cannot move onto itself.
    virtual void moveKeyFrame(long long from, long long to) = 0;
    /// The latest before `time`; the smallest 64-bit value if there is none.
    virtual long long previousKeyFrameTime(long long time) const = 0;
    /// The earliest after `time`; the largest 64-bit value if there is none.
    virtual long long nextKeyFrameTime(long long time) const = 0;
    virtual void receiveDispatcher(ParameterDispatcher* dispatcher) = 0;
    virtual void receiveDispatcher(ConstParameterDispatcher* dispatcher) const = 0;
    /// The second stage of a clone.
    virtual void setupSharedClone(boost::shared_ptr<ParameterInterface> const& clone) const = 0;
    /// Not-a-number differs from everything. @throws KeyFrameException(0) when there is no key
    /// frame
    virtual bool valuesDifferAtTimes(long long time1, long long time2) const = 0;

    virtual std::string description() const;

protected:
    ParameterInterface() = default;
    ParameterInterface(ParameterInterface const& other);
    ParameterInterface& operator=(ParameterInterface const& other) = delete;
};

}  // namespace tarn
