// The two clocks of a media: the moment that the drawing in the guide shows.

#include <TarnMediaLib/TarnMediaLib.h>

#include <iostream>

int main()
{
    boost::shared_ptr<tarn::Project> const project = tarn::Project::create(30, 1);

    //! [media]
    // A hundred units of a movie, known by its name only. On no track, it is the host's own and
    // edited directly.
    boost::shared_ptr<tarn::VMFile> const media(
        new tarn::VMFile(tarn::Range<long long>(0, 100), project, tarn::Rect<float>(0, 0, 640, 480),
                         "recording.mp4"));
    media->trimStart(40);
    media->stretch(1.5);
    media->setTrackStart(120);
    //! [media]
    std::cout << "on the track " << media->trackRange() << ", of the source " << media->mediaRange()
              << ", scalar " << media->scalar() << "\n";

    long long const trackTime = 165;
    //! [conversions]
    // All of this is of one state: a writer waits until the lock goes.
    tarn::ReadWriteMutex::ScopedReadLock const lock(project->mutex());
    // Less the start of the track range; then by the scalar, and on from the media range's start.
    long long const local = media->fromGlobalToParametricTime(trackTime);
    double const sourceTime = media->toParameterTime(double(local));
    double const back = media->fromParameterTime(sourceTime);
    //! [conversions]
    std::cout << trackTime << " on the timeline is local " << local << " and " << sourceTime
              << " in the source; and back " << back << "\n";
}
