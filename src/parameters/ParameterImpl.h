#pragma once

#include "parameters/KeyFrames.h"
#include "parameters/Parameter.h"

namespace tarn {

/// The storage of key frames that all parameters share.
template <class T>
class TARN_API ParameterImpl : public Parameter<T>
{
    using FramePointer = typename KeyFrames<T>::Frame;

public:
    void addKeyFrame(long long time, T const& value) override;
    /// @throws KeyFrameException(0) when `frame` is null
    void addKeyFrame(boost::shared_ptr<KeyFrame<T>> const& frame) override;
    T changeKeyFrame(long long time, T const& value) override;
    /// @throws KeyFrameException(time) when `frame` is null
    boost::shared_ptr<KeyFrame<T>> changeKeyFrame(
        long long time, boost::shared_ptr<KeyFrame<T>> const& frame) override;
    T removeKeyFrame(long long time) override;
    void moveKeyFrame(long long from, long long to) override;

    T valueAtTime(double time) const override;
    boost::shared_ptr<KeyFrame<T>> keyframeAtTime(long long time) const override;
    bool hasKeyFrameAtTime(long long time) const override;
    bool hasKeyFrameInRange(Range<long long> const& range) const override;

    int numKeyFrames() const override;
    long long firstKeyFrameTime() const override;
    long long previousKeyFrameTime(long long time) const override;
    long long nextKeyFrameTime(long long time) const override;
    Range<long long> keyframeRange() const override;
    void moveKeyframes(long long delta) override;
    boost::shared_ptr<std::vector<long long>> keyframeTimes() const override;
    /// Nothing to do here.
    void setupSharedClone(boost::shared_ptr<ParameterInterface> const& clone) const override;
    bool valuesDifferAtTimes(long long time1, long long time2) const override;

    /// The value at all times while there is one key frame, null otherwise. The caller holds the
    /// read lock.
    T const* onlyValue() const
    {
        FramePointer const* const only = m_frames.only();
        return only ? &(*only)->value() : nullptr;
    }

protected:
    ParameterImpl(boost::weak_ptr<ThreadSafe const> const& project, std::string const& name,
                  ReservedIdent attributeIdent = ReservedIdent::draw());
    /// Clones every key frame. The caller holds the read lock.
    ParameterImpl(ParameterImpl const& other);

    KeyFrames<T> const& frames() const { return m_frames; }

    /// What interpolaterAtTime() tells, under the read lock; `owner` keeps it alive where nothing
    /// else does.
    virtual Interpolater<T> const* interpolaterNow(double time,
                                                   boost::shared_ptr<Interpolater<T>>& owner) const;

    /// The `Keyframes` block of the XML; nothing for an empty parameter.
    void xmlOfKeyframes(XMLable::Options& options, int indent) const;

private:
    std::size_t firstIndexNotBefore(long long time) const;
    std::size_t firstIndexAfter(long long time) const;
    std::size_t indexOf(long long time) const;
    bool isTaken(long long time) const;
    void requireFree(long long time) const;
    void insertFrame(long long time, FramePointer const& frame);
    T valueBetween(std::size_t right, double time) const;

    KeyFrames<T> m_frames;
};

#define TARN_DECLARE(T) extern template class TARN_API ParameterImpl<T>;
TARN_PARAMETER_TYPES(TARN_DECLARE)
#undef TARN_DECLARE

}  // namespace tarn
