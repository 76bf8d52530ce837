#include "hosts/HostTest.h"

#include "support/CountingObserver.h"
#include "support/FakeStatsLoader.h"

#include "clipbin/MediaFileStats.h"
#include "clipbin/Source.h"
#include "clipbin/SourceBin.h"
#include "clipbin/SourceBinSentry.h"
#include "clipbin/StatsLoader.h"
#include "commands/CommandHistory.h"
#include "commands/LoadSourceCmd.h"
#include "commands/NullCmd.h"

#include <boost/make_shared.hpp>

#include <memory>
#include <vector>

namespace tarn {
namespace test {

namespace {

using Action = std::function<void()>;

/// A copy of it, as it may set another in its place.
void run(Action const action)
{
    if (action)
        action();
}

/// A sentry that does what it is told, and then answers.
class HostSentry : public SourceBinSentry
{
public:
    std::string description() const override
    {
        run(onDescription);
        return "of a host";
    }
    bool isAcceptable(MediaFileStats const*) const override
    {
        ++calls;
        run(onQuestion);
        return accepts;
    }

    Action onDescription;
    Action onQuestion;
    bool accepts = true;
    mutable int calls = 0;
};

/// A loader for the names that begin with "host:". Once added, it stays for the process.
class HostLoader : public StatsLoader
{
public:
    static HostLoader& instance()
    {
        static HostLoader* const only = [] {
            HostLoader* const made = new HostLoader;
            MediaFileStats::addStatsLoader(made);
            return made;
        }();
        return *only;
    }

    bool canOpenFile(std::string const& file) override
    {
        bool const isMine = file.find("host:") == 0;
        if (isMine)
            run(onQuestion);
        return isMine;
    }
    void loadStats(std::string const&, MediaFileStats* stats) override
    {
        stats->addTrackStats(FakeStatsLoader::picture(100));
        run(onLoad);
    }

    Action onQuestion;
    Action onLoad;
};

/// Asked after a host has misbehaved: what is printed meanwhile.
class PrintedLines
{
public:
    PrintedLines() { ::testing::internal::CaptureStdout(); }
    std::string end() { return ::testing::internal::GetCapturedStdout(); }
};

}  // namespace

/// With one command to undo and one to redo, and a file to load.
class LoadersTest : public HostTest
{
protected:
    LoadersTest()
    {
        given(k_strip);
        project->execute(move("V1.a", +1));
        project->execute(NullCmd::create());
        project->undo();
        FakeStatsLoader::instance().set("fake:new", {FakeStatsLoader::picture(100)});
        HostLoader::instance();
    }
    ~LoadersTest() override
    {
        HostLoader::instance().onQuestion = nullptr;
        HostLoader::instance().onLoad = nullptr;
    }

    boost::shared_ptr<HostSentry> sentry()
    {
        boost::shared_ptr<HostSentry> const made = boost::make_shared<HostSentry>();
        project->addSourceBinSentry(made);
        return made;
    }
    void load(std::string const& file) { project->execute(LoadSourceCmd::create(file)); }
    std::size_t numSources() const
    {
        SourceBin& bin = *project->sourceBin();
        return static_cast<std::size_t>(std::distance(bin.begin(), bin.end()));
    }
    /// Every edit that a host could ask of the project is refused, and for that reason.
    void tryAllEdits()
    {
        refusedEdits = 0;
        std::vector<Action> const all = {
            [this] { project->execute(NullCmd::create()); },
            [this] { project->undo(); },
            [this] { project->redo(); },
            [this] { project->combineLastCommands(); },
            [this] { project->restoreCommandState(CommandHistoryState({}, {})); },
            [this] { project->commandHistory()->setUndoLimit(0); },
            [this] { project->commandHistory()->dropRedoCommands(); },
            [this] { project->commandHistory()->undoAll(); },
            [this] { project->commandHistory()->redoAll(); },
        };
        for (Action const& edit : all) {
            try {
                edit();
            } catch (TarnMediaLibException const& thrown) {
                refusedEdits += std::string(thrown.what()) == "a command is running";
            }
        }
    }
    ::testing::AssertionResult isUnchanged(std::size_t sources)
    {
        if (numSources() != sources || strip() != k_now ||
            project->commandHistory()->numUndoCommands() != 1 ||
            project->commandHistory()->numRedoCommands() != 1)
            return ::testing::AssertionFailure()
                   << strip() << " with " << numSources() << " sources";
        return ::testing::AssertionSuccess();
    }

    static constexpr char const* k_now = "A1: .aaa.bb / A2: c / V1: .aaa.bb";
    static constexpr int k_numEdits = 9;
    int refusedEdits = 0;
};

TARN_WITH_EACH_FAULT(LoadersTest);

// Sentries.

TEST_P(LoadersTest, WhatASentryThrowsPassesAndNothingIsLoaded)
{
    std::size_t const before = numSources();
    boost::shared_ptr<HostSentry> const first = sentry();
    boost::shared_ptr<HostSentry> const second = sentry();
    first->onQuestion = [this] { throwFault(fault()); };
    EXPECT_TRUE(throwsFault(fault(), [this] { load("fake:new"); }));
    EXPECT_EQ(0, second->calls);
    EXPECT_TRUE(isUnchanged(before));
    first->onQuestion = nullptr;
    load("fake:new");
    EXPECT_EQ(before + 1, numSources());
    EXPECT_TRUE(isAtRest());
}

TEST_P(LoadersTest, ASentryWhoseNameThrowsRefusesWithoutALine)
{
    std::size_t const before = numSources();
    boost::shared_ptr<HostSentry> const only = sentry();
    only->accepts = false;
    only->onDescription = [this] { throwFault(fault()); };
    PrintedLines printed;
    EXPECT_TRUE(throwsFault(fault(), [this] { load("fake:new"); }));
    EXPECT_EQ("", printed.end());
    EXPECT_TRUE(isUnchanged(before));
    only->accepts = true;
    EXPECT_TRUE(isAtRest());
}

// Stats loaders.

TEST_P(LoadersTest, WhatALoaderThrowsWhenAskedPasses)
{
    std::size_t const before = numSources();
    HostLoader::instance().onQuestion = [this] { throwFault(fault()); };
    EXPECT_TRUE(throwsFault(fault(), [this] { load("host:new"); }));
    EXPECT_TRUE(throwsFault(fault(), [] { MediaFileStats::isFileOpenable("host:new"); }));
    EXPECT_TRUE(isUnchanged(before));
    HostLoader::instance().onQuestion = nullptr;
    load("host:new");
    EXPECT_EQ(before + 1, numSources());
    EXPECT_TRUE(isAtRest());
}

TEST_P(LoadersTest, WhatALoaderThrowsWhenItReadsPasses)
{
    std::size_t const before = numSources();
    HostLoader::instance().onLoad = [this] { throwFault(fault()); };
    EXPECT_TRUE(throwsFault(fault(), [this] { load("host:new"); }));
    EXPECT_TRUE(throwsFault(fault(), [] { delete MediaFileStats::create("host:new"); }));
    EXPECT_TRUE(isUnchanged(before));
    HostLoader::instance().onLoad = nullptr;
    load("host:new");
    EXPECT_EQ(before + 1, numSources());
    EXPECT_TRUE(isAtRest());
}

TEST_P(LoadersTest, AFileChangeThatThrowsChangesNothing)
{
    load("host:new");
    boost::shared_ptr<Source const> const loaded = project->sourceBin()->sourceForFile("host:new");
    HostLoader::instance().onLoad = [this] { throwFault(fault()); };
    EXPECT_TRUE(throwsFault(fault(), [&] { project->changeSourcesFile(loaded, "host:other"); }));
    EXPECT_EQ("host:new", loaded->mediaFileStats()->filename());
    HostLoader::instance().onLoad = nullptr;
    project->changeSourcesFile(loaded, "host:other");
    EXPECT_EQ("host:other", loaded->mediaFileStats()->filename());
    EXPECT_TRUE(isAtRest());
}

TEST_P(LoadersTest, WhatAnObserverOfASourceThrowsComesAfterTheFileChange)
{
    load("host:new");
    boost::shared_ptr<Source const> const loaded = project->sourceBin()->sourceForFile("host:new");
    CountingObserver thrower([this] { throwFault(fault()); });
    loaded->attach(&thrower);
    EXPECT_TRUE(throwsFault(fault(), [&] { project->changeSourcesFile(loaded, "host:other"); }));
    EXPECT_EQ("host:other", loaded->mediaFileStats()->filename());
    loaded->detach(&thrower);
    EXPECT_TRUE(isAtRest());
}

// What both may call.

class CallingLoadersTest : public LoadersTest
{
};

INSTANTIATE_TEST_SUITE_P(Once, CallingLoadersTest, ::testing::Values(Fault::Foreign));

TEST_P(CallingLoadersTest, ASentryMayNotEdit)
{
    std::size_t const before = numSources();
    boost::shared_ptr<HostSentry> const only = sentry();
    only->onQuestion = [this] { tryAllEdits(); };
    load("fake:new");
    EXPECT_EQ(k_numEdits, refusedEdits);
    EXPECT_EQ(before + 1, numSources());
    EXPECT_EQ(2u, project->commandHistory()->numUndoCommands());
    EXPECT_EQ(k_now, strip());
    project->undo();
    EXPECT_EQ(before, numSources());
    only->onQuestion = nullptr;
    EXPECT_TRUE(isAtRest());
}

TEST_P(CallingLoadersTest, ALoaderMayNotEditWhileACommandLoads)
{
    for (Action* const when :
         {&HostLoader::instance().onQuestion, &HostLoader::instance().onLoad}) {
        std::size_t const before = numSources();
        *when = [this] { tryAllEdits(); };
        load("host:new");
        *when = nullptr;
        EXPECT_EQ(k_numEdits, refusedEdits);
        EXPECT_EQ(before + 1, numSources());
        project->undo();
        EXPECT_EQ(before, numSources());
    }
    EXPECT_TRUE(isAtRest());
}

TEST_P(CallingLoadersTest, ARefusedEditThatIsNotCaughtRefusesTheLoading)
{
    std::size_t const before = numSources();
    boost::shared_ptr<HostSentry> const only = sentry();
    only->onQuestion = [this] { project->execute(NullCmd::create()); };
    EXPECT_TRUE(refuses<TarnMediaLibException>(LoadSourceCmd::create(std::string("fake:new")),
                                               "a command is running"));
    EXPECT_TRUE(isUnchanged(before));
    only->onQuestion = nullptr;
    EXPECT_TRUE(isAtRest());
}

TEST_P(CallingLoadersTest, ALoaderMayEditWhileNoCommandRuns)
{
    HostLoader::instance().onLoad = [this] {
        HostLoader::instance().onLoad = nullptr;
        project->execute(move("V1.b", +1));
    };
    delete MediaFileStats::create("host:new");
    EXPECT_EQ("A1: .aaa..bb / A2: c / V1: .aaa..bb", strip());
    EXPECT_TRUE(isAtRest());
}

TEST_P(CallingLoadersTest, BothMayReadAndAskForOtherFiles)
{
    boost::shared_ptr<HostSentry> const only = sentry();
    std::string seen;
    only->onQuestion = [&] { seen = strip(); };
    unsigned int numTracks = 0;
    HostLoader::instance().onLoad = [&] {
        std::unique_ptr<MediaFileStats> const other(MediaFileStats::create("fake:new"));
        numTracks = other->numTracks();
    };
    load("host:new");
    EXPECT_EQ(k_now, seen);
    EXPECT_EQ(1u, numTracks);
}

TEST_P(CallingLoadersTest, ASentryAddedByASentryIsAskedAsWell)
{
    boost::shared_ptr<HostSentry> added;
    boost::shared_ptr<HostSentry> const first = sentry();
    first->onQuestion = [&] {
        first->onQuestion = nullptr;
        added = sentry();
    };
    load("fake:new");
    EXPECT_EQ(1, added->calls);
}

TEST_P(CallingLoadersTest, ALoaderAddedByALoaderIsAskedFromTheNextFileOnAtTheLatest)
{
    class Counting : public StatsLoader
    {
    public:
        bool canOpenFile(std::string const&) override
        {
            ++calls;
            return false;
        }
        void loadStats(std::string const&, MediaFileStats*) override {}

        int calls = 0;
    };
    static Counting* added = nullptr;
    HostLoader::instance().onQuestion = [] {
        if (!added) {
            added = new Counting;
            MediaFileStats::addStatsLoader(added);
        }
    };
    load("host:new");
    int const calls = added->calls;
    load("host:another");
    EXPECT_EQ(calls + 1, added->calls);
}

TEST_P(CallingLoadersTest, ASentryMayDropTheLastPointerToTheProject)
{
    boost::shared_ptr<InternalProject> mine = InternalProject::create(project->editRate());
    boost::weak_ptr<InternalProject> const watched = mine;
    boost::shared_ptr<HostSentry> const killer = boost::make_shared<HostSentry>();
    killer->onQuestion = [&] { mine.reset(); };
    mine->addSourceBinSentry(killer);
    InternalProject& raw = *mine;
    EXPECT_TRUE(raw.execute(LoadSourceCmd::create(std::string("fake:new"))));
    EXPECT_EQ(1, killer->calls);
    EXPECT_TRUE(watched.expired());
}

}  // namespace test
}  // namespace tarn
