#pragma once

#include "clipbin/ClipBinFwd.h"
#include "commands/CommandsFwd.h"
#include "project/LockPolicy.h"
#include "project/ProjectFwd.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <cstdint>

namespace tarn {
namespace bench {

/// A project of 30 edit units a second with one loaded source, a picture track and a sound track.
/// Nothing is read from disk: the source has ready-made statistics.
class BenchProject
{
public:
    /// How long a media is, edit units.
    static long long const k_length = 10;

    explicit BenchProject(LockPolicy policy = LockPolicy::Counted);

    boost::shared_ptr<Project> const& project() const { return m_project; }
    boost::weak_ptr<ThreadSafe const> lock() const;
    boost::shared_ptr<Source> const& source() const { return m_source; }
    boost::shared_ptr<VisualMixer> visualMixer() const;
    boost::shared_ptr<Track> const& pictures() const { return m_pictures; }
    boost::shared_ptr<Track> const& sounds() const { return m_sounds; }

    /// Parentless medias, k_length long, with room to trim.
    boost::shared_ptr<VMFile> newPicture() const;
    boost::shared_ptr<Media> newSound() const;

    /// Appends picture tracks.
    void addPictureTracks(int count);
    /// Places n medias by commands, one every `step` edit units from 0 up, and forgets the history.
    void placePictures(boost::shared_ptr<Track> const& track, std::int64_t n, long long step);
    void placeSounds(std::int64_t n, long long step);
    /// Executes a command, which must change something.
    void execute(boost::shared_ptr<Command> const& command) const;
    void forgetHistory() const;

private:
    boost::shared_ptr<Project> m_project;
    boost::shared_ptr<Source> m_source;
    boost::shared_ptr<Track> m_pictures;
    boost::shared_ptr<Track> m_sounds;
};

}  // namespace bench
}  // namespace tarn
