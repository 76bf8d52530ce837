#pragma once

#include "parameters/ParameterTypes.h"

namespace tarn {

/// Learns the type of a parameter. The host implements it; the library only calls it.
///
/// Called once, on the asking thread, with no lock taken for it and nothing waiting for its return:
/// it may edit if its thread may, destroy itself or what it was given, and throw, which passes to
/// whoever asked.
class TARN_API ParameterDispatcher
{
public:
    virtual ~ParameterDispatcher();

    using InterpolaterOfFloat = boost::shared_ptr<Interpolater<float>>;
    using InterpolaterOfDouble = boost::shared_ptr<Interpolater<double>>;
    using InterpolaterOfPoint = boost::shared_ptr<Interpolater<Point>>;
    using InterpolaterOfMatrix = boost::shared_ptr<Interpolater<TransformMatrix>>;
    using InterpolaterOfPosition = boost::shared_ptr<Interpolater<AudioPosition>>;

    virtual void dispatch(boost::shared_ptr<InterpolatingParam<float>> const& parameter) = 0;
    virtual void dispatch(boost::shared_ptr<InterpolatingParam<double>> const& parameter) = 0;
    virtual void dispatch(boost::shared_ptr<InterpolatingParam<Point>> const& parameter) = 0;
    virtual void dispatch(
        boost::shared_ptr<InterpolatingParam<TransformMatrix>> const& parameter) = 0;
    virtual void dispatch(
        boost::shared_ptr<InterpolatingParam<AudioPosition>> const& parameter) = 0;
    virtual void dispatch(boost::shared_ptr<LeftParameter<Color>> const& parameter) = 0;
    virtual void dispatch(boost::shared_ptr<LeftParameter<std::string>> const& parameter) = 0;
    virtual void dispatch(
        boost::shared_ptr<LeftParameter<boost::shared_ptr<IMFile>>> const& parameter) = 0;
    virtual void dispatch(
        boost::shared_ptr<LeftParameter<InterpolaterOfFloat>> const& parameter) = 0;
    virtual void dispatch(
        boost::shared_ptr<LeftParameter<InterpolaterOfDouble>> const& parameter) = 0;
    virtual void dispatch(
        boost::shared_ptr<LeftParameter<InterpolaterOfPoint>> const& parameter) = 0;
    virtual void dispatch(
        boost::shared_ptr<LeftParameter<InterpolaterOfMatrix>> const& parameter) = 0;
    virtual void dispatch(
        boost::shared_ptr<LeftParameter<InterpolaterOfPosition>> const& parameter) = 0;
};

}  // namespace tarn
