// The table's second half: what is no command.

#include "faults/FaultStage.h"
#include "faults/Operation.h"

#include "clipbin/Clipping.h"
#include "clipbin/MediaFileStats.h"
#include "clipbin/Source.h"
#include "clipbin/SourceBinSentry.h"
#include "commands/CommandHistory.h"
#include "commands/CommandHistoryState.h"
#include "commands/LoadSourceCmd.h"
#include "commands/MoveCmd.h"
#include "datatypes/MediaObserver.h"
#include "datatypes/ScreenMetaData.h"
#include "effects/EffectLibrary.h"
#include "parameters/Attribute.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/MTVector.h"
#include "support/Fades.h"
#include "support/FakeFilterCatalogue.h"
#include "support/FakeStatsLoader.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/HitTester.h"
#include "timeline/VMFile.h"
#include "timeline/VisualMixer.h"

#include <boost/make_shared.hpp>

#include <memory>
#include <sstream>

namespace tarn {
namespace test {
namespace {

using Action = std::function<void(FaultStage&)>;

char const* const k_smallStrip = "A1: aaaa.bb / V1: aaaa.bb.cc";

Operation row(char const* name, Action const& run, Action const& prepare = Action(),
              std::function<std::string(FaultStage&)> const& tell = nullptr)
{
    Operation result;
    result.name = name;
    result.strip = k_smallStrip;
    result.prepare = prepare;
    result.run = run;
    result.tell = tell;
    result.dropsCommands = result.name == "return to a snapshot";
    return result;
}

class AgreeableSentry : public SourceBinSentry
{
public:
    std::string description() const override { return "agreeable"; }
    bool isAcceptable(MediaFileStats const*) const override { return true; }
};

/// A stream that passes on what its own buffer throws; by itself it would only be marked bad.
void print(XMLable const& written)
{
    std::ostringstream out;
    out.exceptions(std::ios::badbit);
    written.toXML(out);
}

/// A source in the bin that is a recording with two files beside it.
void record(FaultStage& s)
{
    FakeStatsLoader::TrackStats picture = FakeStatsLoader::picture(100);
    picture.metaData = {"fake:film/dirtyrect.dat", "fake:film/cursoraction.dat"};
    FakeStatsLoader::instance().set("fake:film", {picture, FakeStatsLoader::sound(100)});
    FakeStatsLoader::instance().set("fake:another and much longer name",
                                    {picture, FakeStatsLoader::sound(100)});
    boost::shared_ptr<Source> const film =
        Source::create(s.project, s.lock(), std::string("fake:film"));
    s.project->execute(LoadSourceCmd::create(film));
    s.kept.push_back(film);
}

boost::shared_ptr<Source> recording(FaultStage& s)
{
    return boost::const_pointer_cast<Source>(
        boost::static_pointer_cast<Source const>(s.kept.front()));
}

/// The names of the two side files.
std::string sideFiles(FaultStage& s)
{
    std::string text;
    boost::shared_ptr<VisualMixer> const mixer = recording(s)->timeline()->visualMixer();
    for (auto const& entry : mixer->trackAtIndex(0)->medias()) {
        auto const film = boost::dynamic_pointer_cast<VMFile>(entry.second);
        boost::shared_ptr<ScreenMetaData const> const metaData = film->screenMetaData()->value();
        text += metaData->dirtyRectsFilename() + "\n" + metaData->cursorActionFilename() + "\n";
    }
    return text;
}

void twoMoves(FaultStage& s)
{
    s.project->execute(MoveCmd::create(s.track("V1"), s.media("V1.c"), 100));
    s.project->execute(MoveCmd::create(s.track("V1"), s.media("V1.c"), 100));
}

std::vector<Operation> shell()
{
    return {
        row("create a project", [](FaultStage&) { Project::create(30, 1); }),
        row("clone the project",
            [](FaultStage& s) { std::unique_ptr<InternalProject> copy(s.project->clone()); }),
        row(
            "combine the last commands", [](FaultStage& s) { s.project->combineLastCommands(); },
            twoMoves),
        row("take a snapshot", [](FaultStage& s) { s.project->commandState(); }),
        row(
            "return to a snapshot",
            [](FaultStage& s) {
                boost::shared_ptr<CommandHistoryState const> const state =
                    boost::static_pointer_cast<CommandHistoryState const>(s.kept.front());
                s.project->restoreCommandState(*state);
            },
            [](FaultStage& s) {
                s.kept.push_back(
                    boost::make_shared<CommandHistoryState>(s.project->commandState()));
                s.project->execute(MoveCmd::create(s.track("V1"), s.media("V1.c"), 100));
            }),
        row(
            "lower the undo limit",
            [](FaultStage& s) { s.project->commandHistory()->setUndoLimit(1); }, twoMoves),
        row(
            "change a source's file",
            [](FaultStage& s) {
                s.project->changeSourcesFile(recording(s), "fake:another and much longer name");
            },
            record, sideFiles),
        row("add a sentry",
            [](FaultStage& s) {
                s.project->addSourceBinSentry(
                    boost::shared_ptr<SourceBinSentry>(new AgreeableSentry));
            }),
    };
}

std::vector<Operation> makers()
{
    return {
        row(
            "make a source",
            [](FaultStage& s) { Source::create(s.project, s.lock(), std::string("fake:film")); },
            record),
        row("make a clipping",
            [](FaultStage& s) {
                Clipping(s.timeline(), Range<long long>(10, 20),
                         ConstTrackSet{s.track("A1"), s.track("V1")}, "a name that is rather long");
            }),
        row("make a media", [](FaultStage& s) { s.freshVideo('k', 3); }),
        row("observe all medias",
            [](FaultStage& s) {
                CountingObserver watcher;
                MediaObserver const observer(s.timeline());
                observer.attach(&watcher);
                observer.detach(&watcher);
            }),
        row("read the effects of a catalogue",
            [](FaultStage&) {
                FakeFilterCatalogue catalogue;
                fillWithOneOfEverything(catalogue);
                EffectLibrary const library(catalogue);
                library.description();
            }),
    };
}

std::vector<Operation> readers()
{
    return {
        row("print the project", [](FaultStage& s) { print(*s.project); }),
        row(
            "print the history", [](FaultStage& s) { print(*s.project->commandHistory()); },
            twoMoves),
        row(
            "evaluate all parameters",
            [](FaultStage& s) {
                // A new one, whose parameters nobody has asked for yet.
                boost::shared_ptr<Media> const fresh = s.freshVideo('k', 3);
                for (auto const& media : {fresh, s.media("V1.a")}) {
                    auto const parameters = media->parameterVector();
                    for (auto const& parameter : *parameters) {
                        auto const number =
                            boost::dynamic_pointer_cast<InterpolatingParam<double> const>(
                                parameter);
                        if (number) {
                            media->transformedDoubleParameterValueAtTime(number, 5);
                            number->interpolaterParam();
                        }
                    }
                }
            },
            [](FaultStage& s) { giveFades(s.media("V1.a"), 10, 20); }),
        row("list the medias", [](FaultStage& s) { s.timeline()->allMedias(); }),
        row("hit a media",
            [](FaultStage& s) {
                HitTester::hitTestAtLocation(s.visualMixer(), Point(10, 10, 0), 10);
            }),
    };
}

}  // namespace

std::vector<Operation> otherOperations()
{
    std::vector<Operation> result;
    for (auto const& part : {shell(), makers(), readers()})
        result.insert(result.end(), part.begin(), part.end());
    return result;
}

}  // namespace test
}  // namespace tarn
