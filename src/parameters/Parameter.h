#pragma once

#include "datatypes/Identified.h"
#include "parameters/KeyFrame.h"
#include "parameters/ParameterInterface.h"
#include "parameters/ParameterIterator.h"
#include "project/SubProject.h"

#include <boost/enable_shared_from_this.hpp>
#include <boost/weak_ptr.hpp>

namespace tarn {

/// A value of type T that changes over time. See ParameterInterface for clock, locks and failures.
///
/// Queries of values and frames take the read lock themselves. Those of times alone do not.
template <class T>
class TARN_API Parameter : public SubProject,
                           public ParameterInterface,
                           public Identified,
                           public boost::enable_shared_from_this<Parameter<T>>
{
public:
    Parameter* clone() const override = 0;
    std::string description() const override = 0;

    void receiveDispatcher(ParameterDispatcher* dispatcher) override = 0;
    void receiveDispatcher(ConstParameterDispatcher* dispatcher) const override = 0;

    virtual void addKeyFrame(long long time, T const& value) = 0;
    /// Stores the frame itself at its own time.
    virtual void addKeyFrame(boost::shared_ptr<KeyFrame<T>> const& frame) = 0;
    /// Returns the value that the frame had.
    virtual T changeKeyFrame(long long time, T const& value) = 0;
    /// Puts `frame`, which takes on that time, in the place of the frame there, and returns that.
    virtual boost::shared_ptr<KeyFrame<T>> changeKeyFrame(
        long long time, boost::shared_ptr<KeyFrame<T>> const& frame) = 0;
    /// Returns the value that the frame had.
    virtual T removeKeyFrame(long long time) = 0;
    void moveKeyFrame(long long from, long long to) override = 0;

    /// Between key frames what the interpolater at that time makes of both neighbours; before the
    /// first and after the last their values. @throws KeyFrameException(0) when there is none
    virtual T valueAtTime(double time) const = 0;
    /// How values are made from that time to the next key frame.
    virtual boost::shared_ptr<Interpolater<T>> interpolaterAtTime(double time) const = 0;
    /// The stored frame itself.
    virtual boost::shared_ptr<KeyFrame<T>> keyframeAtTime(long long time) const = 0;
    /// At exactly that time.
    virtual bool hasKeyFrameAtTime(long long time) const = 0;
    /// Both ends of the range count.
    virtual bool hasKeyFrameInRange(Range<long long> const& range) const = 0;

    int numKeyFrames() const override = 0;
    /// The largest 64-bit value if there is no key frame.
    virtual long long firstKeyFrameTime() const = 0;
    long long previousKeyFrameTime(long long time) const override = 0;
    long long nextKeyFrameTime(long long time) const override = 0;
    Range<long long> keyframeRange() const override = 0;
    void moveKeyframes(long long delta) override = 0;

    /// The parameter that tells the interpolater at each time; null where that cannot change.
    virtual boost::shared_ptr<Parameter<boost::shared_ptr<Interpolater<T>>>> interpolaterParam()
        const = 0;

    boost::shared_ptr<std::vector<long long>> keyframeTimes() const override = 0;
    void setupSharedClone(boost::shared_ptr<ParameterInterface> const& clone) const override = 0;
    bool valuesDifferAtTimes(long long time1, long long time2) const override = 0;

    /// The iterators keep the project read-locked.
    ParameterIterator<T> begin() const;
    ParameterIterator<T> end() const;

protected:
    Parameter(boost::weak_ptr<ThreadSafe const> const& project, std::string const& name,
              ReservedIdent attributeIdent);
    Parameter(Parameter const& other);
    Parameter& operator=(Parameter const& other) = delete;
};

#define TARN_DECLARE(T) extern template class TARN_API Parameter<T>;
TARN_PARAMETER_TYPES(TARN_DECLARE)
#undef TARN_DECLARE

}  // namespace tarn
