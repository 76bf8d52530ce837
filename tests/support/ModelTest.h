#pragma once

#include "support/ModelText.h"

#include "clipbin/ClipBinFwd.h"
#include "commands/Command.h"
#include "commands/CommandHistoryState.h"
#include "datatypes/Range.h"
#include "project/InternalProject.h"
#include "timeline/Timeline.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace tarn {
namespace test {

/// The fixture of every test that edits a timeline.
///
/// given("A1: ....cc / V1: aaa...bb") builds a project of 30 edit units a second whose tracks look
/// so; see Strip for the notation. Every letter is a media of a source of its own, "fake:a" and so
/// on: a movie of 10,000 edit units with a picture and a stereo sound track, or a still from 's'
/// on. Movie medias start at 500 on the source's clock, so that there is room to trim outwards. The
/// history is empty when given returns.
class ModelTest : public ::testing::Test
{
protected:
    static long long const k_mediaStart = 500;
    static long long const k_sourceLength = 10000;

    ModelTest();

    void given(std::string const& strip);

    /// "V1" or "A2": the track of that name.
    boost::shared_ptr<Track> track(std::string const& name) const;
    /// "V1.a": the media of that letter on that track, by what was given.
    boost::shared_ptr<Media> media(std::string const& name) const;
    boost::shared_ptr<Source> source(char letter) const;
    boost::shared_ptr<VisualMixer> visualMixer() const;
    boost::shared_ptr<AudioMixer> audioMixer() const;
    boost::weak_ptr<ThreadSafe const> lock() const;
    boost::shared_ptr<Timeline> timeline() const;

    /// The timeline as a strip. A media that was not given takes the next letter nobody has, by row
    /// and time; new medias of one link group share it.
    std::string strip() const;

    /// The commands used most, in cells where the strip has cells.
    boost::shared_ptr<Command> move(std::string const& mediaName, long long cells) const;
    boost::shared_ptr<Command> trimStart(std::string const& mediaName, long long cells) const;
    boost::shared_ptr<Command> trimEnd(std::string const& mediaName, long long cells) const;
    boost::shared_ptr<Command> stretch(std::string const& mediaName, double scalar) const;
    boost::shared_ptr<Command> add(std::string const& trackName,
                                   boost::shared_ptr<Media const> const& media,
                                   long long cells) const;
    boost::shared_ptr<Command> remove(std::string const& mediaName) const;
    boost::shared_ptr<Command> split(std::string const& trackName, long long cells) const;

    /// A parentless media of the source of that letter, as long as that many cells.
    boost::shared_ptr<Media> freshVideo(char letter, long long cells);
    boost::shared_ptr<Media> freshSound(char letter, long long cells);
    boost::shared_ptr<Media> freshStill(char letter, long long cells);

    /// Runs the command, undoes it, redoes it, undoes and redoes it again, and once more without
    /// the history; after each the strip and the exact model must be what they were. The command
    /// stays executed.
    ::testing::AssertionResult edits(boost::shared_ptr<Command> const& command,
                                     std::string const& expected);
    /// The same for an edit that a strip does not show: the model must only come back exactly.
    ::testing::AssertionResult edits(boost::shared_ptr<Command> const& command);

    /// The command must throw E, with that text if one is given, and change neither the model nor
    /// the history.
    template <class E>
    ::testing::AssertionResult refuses(boost::shared_ptr<Command> const& command,
                                       std::string const& message = k_anyMessage)
    {
        return refusesAs(
            [](std::function<void()> const& run) {
                try {
                    run();
                } catch (E const& thrown) {
                    return std::string(thrown.what());
                }
                return std::string(k_nothingThrown);
            },
            command, message);
    }

    boost::shared_ptr<InternalProject> project;

private:
    static char const* const k_anyMessage;
    static char const* const k_nothingThrown;

    ::testing::AssertionResult refusesAs(
        std::function<std::string(std::function<void()> const&)> const& catching,
        boost::shared_ptr<Command> const& command, std::string const& message);
    ::testing::AssertionResult cameBack(char const* after, std::string const& wantedStrip,
                                        std::string const& wantedModel) const;
    boost::shared_ptr<Source> makeSource(char letter);
    boost::shared_ptr<Media> freshMedia(std::string const& row, char letter, long long duration);
    void addTracks(char kind, int count);

    std::map<std::string, boost::shared_ptr<Media>> m_medias;  // by "V1.a"
    std::map<Media const*, char> m_letters;
    mutable std::map<char, boost::shared_ptr<Source>> m_sources;
};

}  // namespace test
}  // namespace tarn
