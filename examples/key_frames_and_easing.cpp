// Key frames, and a way of going from one to the next that the host brings along.

#include <TarnMediaLib/TarnMediaLib.h>

#include <algorithm>
#include <iostream>

namespace {

using boost::shared_ptr;

//! [interpolater]
/// Starts slowly and ends slowly: 3 p^2 - 2 p^3 of the way at position p.
///
/// It has no state, so one object serves every parameter and thread.
class EaseInOut : public tarn::Interpolater<double>
{
public:
    /// The name stands in the project's XML.
    EaseInOut() : tarn::Interpolater<double>("ease") {}

protected:
    double doInterpolate(double left, double right, double position) const override
    {
        double const p = std::clamp(position, 0.0, 1.0);
        return left + (right - left) * p * p * (3 - 2 * p);
    }
};
//! [interpolater]

//! [read]
/// What is shown at a time of the timeline: from there to the media's own clock, and through the
/// media's key frames, edges included.
double shownAt(tarn::Media const& media,
               shared_ptr<tarn::InterpolatingParam<double> const> const& parameter, long long time)
{
    double const local = double(media.fromGlobalToParametricTime(time));
    return media.transformedDoubleParameterValueAtTime(parameter, local);
}
//! [read]

void print(std::string const& what, tarn::VisualMedia const& media)
{
    shared_ptr<tarn::InterpolatingParam<double> const> const x = media.translation()->at(0);
    std::cout << what << " (" << x->interpolaterAtTime(0)->id() << "):";
    for (long long time = 100; time <= 140; time += 10)
        std::cout << " " << shownAt(media, x, time);
    std::cout << "\n";
}

}  // namespace

int main()
{
    shared_ptr<tarn::Project> const project = tarn::Project::create(30, 1);
    project->execute(tarn::NewVisualMixerCmd::create(1280, 720));
    project->execute(tarn::NewVisualTrackCmd::create(-1));
    shared_ptr<tarn::TextBox> const box(new tarn::TextBox("title", 0, 90, 0, 90, project, 320, 60));
    project->execute(
        tarn::AddMediaCmd::create(project->timeline()->visualMixer()->trackAtIndex(0), box, 100));
    print("at rest", *box);

    //! [keyframes]
    shared_ptr<tarn::InterpolatingParam<double>> const x = box->translation()->at(0);
    // Key frames lie on the clock of the source, which for a title begins with the title.
    long long const start = static_cast<long long>(box->toParameterTime(0));
    project->execute(tarn::AddKeyFrameCmd<double>::create(x, start + 40, 320.0));
    print("two key frames", *box);

    shared_ptr<tarn::Interpolater<double>> const ease(new EaseInOut);
    project->execute(tarn::SetInterpolaterCmd<double>::create(x, start, ease));
    //! [keyframes]
    print("eased", *box);

    project->undo();
    print("one step back", *box);
}
