#pragma once

#include "script/Statement.h"

#include <TarnMediaLib/clipbin/Clipping.h>
#include <TarnMediaLib/clipbin/Source.h>
#include <TarnMediaLib/project/Project.h>
#include <TarnMediaLib/timeline/Timeline.h>
#include <TarnMediaLib/timeline/Track.h>

#include <boost/shared_ptr.hpp>

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

namespace tarn::tool {

/// What the project of a script starts with. Making it is no step that could be undone.
struct ProjectSettings
{
    unsigned rateUpper = 30;  ///< edit units a second, over `rateLower`
    unsigned rateLower = 1;
    int width = 1280;
    int height = 720;
    unsigned sampleRate = 44100;
};

/// The project that a script edits, and the names that it has given to things in it.
///
/// Look-ups take the word that asks, and throw a ScriptError at its place when what it names is not
/// there now: a name outlives an undo, the thing it names may not.
class Stage
{
public:
    /// `folder` is where the script lies, which relative file names count from; `out` is what
    /// scripts print to.
    Stage(ProjectSettings const& settings, std::string const& folder, std::ostream& out);

    Project& project() const { return *m_project; }
    boost::shared_ptr<Timeline> timeline() const { return m_project->timeline(); }
    /// What parentless objects are made for.
    boost::weak_ptr<ThreadSafe const> lock() const { return m_project; }
    std::ostream& out() const { return m_out; }

    /// @name What words name
    /// @{
    boost::shared_ptr<Track> track(Word const& word) const;
    std::vector<boost::shared_ptr<Track>> tracks(std::vector<Word> const& words) const;
    boost::shared_ptr<Mixer> mixer(Word const& word, char kind) const;
    /// A media that lies on a track.
    boost::shared_ptr<Media const> media(Word const& word) const;
    boost::shared_ptr<Clipping> clip(Word const& word) const;
    /// Empty when the word is no name of a file that was loaded.
    boost::shared_ptr<Source const> source(Word const& word) const;
    std::string filePath(Word const& word) const;
    /// @}

    /// @name Times in edit units
    /// @{
    long long time(Word const& word) const;
    /// From the words of `from` and `to`. @throws ScriptError unless it holds something
    Range<long long> range(Statement const& statement) const;
    double unitsPerSecond() const;
    /// @}

    /// @name Names given; nothing is done for a statement without `as`
    /// @{
    void nameMedia(Statement const& statement, boost::shared_ptr<Media const> const& media);
    void nameClip(Statement const& statement, boost::shared_ptr<Clipping> const& clip);
    void nameSource(Statement const& statement, boost::shared_ptr<Source const> const& source);
    /// What a media is called in print.
    std::string label(boost::shared_ptr<Media const> const& media) const;
    /// @}

private:
    boost::shared_ptr<Project> m_project;
    std::string m_folder;
    std::ostream& m_out;
    std::map<std::string, boost::shared_ptr<Media const>> m_medias;
    std::map<boost::shared_ptr<Media const>, std::string> m_labels;
    std::map<std::string, boost::shared_ptr<Clipping>> m_clips;
    std::map<std::string, boost::shared_ptr<Source const>> m_sources;
};

}  // namespace tarn::tool
