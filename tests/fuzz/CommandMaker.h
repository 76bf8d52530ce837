#pragma once

#include "fuzz/Step.h"

#include "commands/Command.h"
#include "parameters/ParametersFwd.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <string>
#include <vector>

namespace tarn {
namespace test {

class Stage;

/// A command of a session, with the C++ that makes it again in a test on the same stage.
struct MadeCommand
{
    boost::shared_ptr<Command> command;
    /// Statements, the last of which defines `command`.
    std::string code;
    /// What it is about where the naive model wants to know; empty otherwise.
    boost::shared_ptr<Track> track;
    boost::shared_ptr<Media> media;
    long long amount = 0;
    double scalar = 1.0;
};

/// Reads a step of command kind as a command on the stage as it is now. Most arguments make sense,
/// some do not. Changes nothing. Without a command when the model has nothing for the step.
class CommandMaker
{
public:
    CommandMaker(Stage const& stage, Step const& step) : m_stage(stage), m_step(step) {}

    MadeCommand make();

private:
    /// A track with the name that the notation has for it.
    struct NamedTrack
    {
        boost::shared_ptr<Track> track;
        std::string name;
    };
    /// A media with an expression for it. On no track if it is the pool's and parentless.
    struct NamedMedia
    {
        boost::shared_ptr<Media> media;
        NamedTrack on;
        std::string code;
    };

    /// A parameter of a media with an expression for it; without one when the media has fewer.
    struct NamedNumber
    {
        boost::shared_ptr<Parameter<double> const> parameter;
        std::string code;
    };

    std::uint32_t number() { return m_step.numbers[m_next++ % Step::k_numbers]; }
    std::uint32_t below(std::size_t count) { return number() % static_cast<std::uint32_t>(count); }
    bool chance(int percent) { return static_cast<int>(number() % 100) < percent; }
    /// Mostly on the grid and near, sometimes wild.
    long long time();
    long long offset();
    /// Mostly one of these.
    long long oneOf(std::vector<long long> const& times);

    std::vector<NamedTrack> tracks() const;
    std::vector<NamedTrack> tracksOf(char kind) const;
    std::vector<NamedMedia> placed() const;
    NamedTrack anyTrack();
    NamedMedia anyPlaced();
    NamedNumber anyNumber();
    std::vector<NamedTrack> someTracks();
    std::vector<NamedMedia> someMedias();

    void makeAtomic();
    void makeAdd();
    void makeRemovals();
    void makeCut();
    void makeRipple();
    void makeLink();
    void makeTracks();
    void makeMixers();
    void makeClones();
    void makeEffects();
    void makeEdges();
    void makeEdge(NamedMedia const& on);
    void makeCopies();
    void makePaste();
    void makeAddSource();
    void makeSources();
    void makeKeyFrames();
    void makeTypedKeyFrame();
    template <class T>
    void makeKeyFrameOf(std::string const& type);
    void makeSetInterpolater();
    void makeMarker();
    void makeNullArgument();
    void makePair();

    /// Sets the command, and the code that makes it.
    template <class C>
    boost::shared_ptr<C> set(boost::shared_ptr<C> const& command, std::string const& code)
    {
        m_made.command = command;
        also("auto const command = " + code + ";");
        return command;
    }
    void note(NamedTrack const& track, NamedMedia const& media, long long amount);
    void also(std::string const& statement) { m_made.code += statement + "\n"; }

    Stage const& m_stage;
    Step const& m_step;
    std::size_t m_next = 0;
    MadeCommand m_made;
};

}  // namespace test
}  // namespace tarn
