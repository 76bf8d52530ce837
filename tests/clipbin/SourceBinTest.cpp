#include "clipbin/SourceBin.h"

#include "clipbin/SourceBinSentry.h"
#include "exceptions/DanglingWeakPtrException.h"
#include "exceptions/IOException.h"
#include "exceptions/TarnMediaLibException.h"
#include "exceptions/ValueException.h"
#include "support/CountingObserver.h"
#include "support/OtherThread.h"
#include "support/SourceTestBase.h"
#include "support/Thrown.h"
#include "support/Xml.h"

#include <memory>

namespace tarn {
namespace test {
namespace {

/// Notes in a log which file it was asked about, and answers as it was told.
class FakeSentry : public SourceBinSentry
{
public:
    FakeSentry(std::string const& name, bool answer, std::string& log)
        : m_name(name), m_answer(answer), m_log(&log)
    {}

    std::string description() const override { return m_name; }
    bool isAcceptable(MediaFileStats const* stats) const override
    {
        *m_log += m_name + "?" + stats->filename() + " ";
        return m_answer;
    }

private:
    std::string m_name;
    bool m_answer;
    std::string* m_log;
};

using RemovalException = ValueException<boost::shared_ptr<Source const>>;

class SourceBinTest : public SourceTestBase
{
protected:
    SourceBinTest()
    {
        FakeStatsLoader::instance().set("fake:a", {picture(100)});
        FakeStatsLoader::instance().set("fake:./a", {picture(100)});
        FakeStatsLoader::instance().set("fake:b", {sound(100)});
        bin->attach(&observer);
    }
    ~SourceBinTest() override { bin->detach(&observer); }

    void addSentry(std::string const& name, bool answer)
    {
        bin->addSentry(boost::shared_ptr<SourceBinSentry>(new FakeSentry(name, answer, log)));
    }
    /// The files in the bin, in order.
    std::string files() const
    {
        std::string all;
        SourceBin const& read = *bin;
        for (auto source = read.begin(); source != read.end(); ++source) {
            all += (*source)->mediaFileStats()->filename() + " ";
        }
        return all;
    }

    std::string log;
    CountingObserver observer;
    std::unique_ptr<SourceBin> bin{
        new SourceBin(project->weak(), boost::weak_ptr<ProjectEditRate>(project))};
};

TEST_F(SourceBinTest, LoadedFilesStandInTheirOrder)
{
    boost::shared_ptr<Source> const source = bin->loadFile("fake:b");
    bin->loadFile("fake:a");
    EXPECT_EQ("fake:b fake:a ", files());
    EXPECT_EQ(source, *bin->begin());
    EXPECT_EQ(2, std::distance(bin->begin(), bin->end()));
}

TEST_F(SourceBinTest, ALoadIsTold)
{
    bin->loadFile("fake:a");
    EXPECT_EQ(1, observer.calls());
}

TEST_F(SourceBinTest, ASecondLoadGivesTheSameSource)
{
    int const loads = FakeStatsLoader::instance().numLoads("fake:a");
    boost::shared_ptr<Source> const source = bin->loadFile("fake:a");
    EXPECT_EQ(source, bin->loadFile("fake:a"));
    EXPECT_EQ("fake:a ", files());
    EXPECT_EQ(loads + 1, FakeStatsLoader::instance().numLoads("fake:a"));
    EXPECT_EQ(1, observer.calls());
}

TEST_F(SourceBinTest, AnotherSpellingIsAnotherSource)
{
    boost::shared_ptr<Source> const source = bin->loadFile("fake:a");
    EXPECT_NE(source, bin->loadFile("fake:./a"));
    EXPECT_EQ("fake:a fake:./a ", files());
}

TEST_F(SourceBinTest, SourcesHaveTheProjectsRate)
{
    FakeStatsLoader::instance().set("fake:fast", {picture(100, 60)});
    EXPECT_EQ(Range<long long>(0, 50), bin->loadFile("fake:fast")->timeRange());
}

TEST_F(SourceBinTest, AFileThatCannotBeReadIsNotLoaded)
{
    FakeStatsLoader::instance().forget("fake:missing");
    EXPECT_STREQ("IOException: Unable to initialize file: fake:missing",
                 thrownBy<IOException>([this] { bin->loadFile("fake:missing"); }).what());
    EXPECT_EQ("", files());
    EXPECT_EQ(0, observer.calls());
}

TEST_F(SourceBinTest, AFileWithoutALengthIsNotLoaded)
{
    FakeStatsLoader::instance().set("fake:nothing", {picture(0)});
    EXPECT_STREQ("source has timerange of zero",
                 thrownBy<TarnMediaLibException>([this] { bin->loadFile("fake:nothing"); }).what());
    EXPECT_EQ("", files());
}

TEST_F(SourceBinTest, WithoutAnEditRateNothingCanBeLoaded)
{
    SourceBin rateless(project->weak(), boost::weak_ptr<ProjectEditRate>());
    auto const thrown =
        thrownBy<DanglingWeakPtrException<ProjectEditRate>>([&] { rateless.loadFile("fake:a"); });
    EXPECT_STREQ("", thrown.what());
}

TEST_F(SourceBinTest, WithoutAnEditRateALoadedFileIsStillFound)
{
    SourceBin rateless(project->weak(), boost::weak_ptr<ProjectEditRate>());
    boost::shared_ptr<Source> const source = load("fake:a");
    rateless.addSource(source);
    EXPECT_EQ(source, rateless.loadFile("fake:a"));
}

TEST_F(SourceBinTest, WithoutAProjectItCannotBeAsked)
{
    project.reset();
    EXPECT_THROW(bin->isFileLoaded("fake:a"), boost::bad_weak_ptr);
}

TEST_F(SourceBinTest, ConsentingSentriesAreAskedInOrder)
{
    addSentry("first", true);
    addSentry("second", true);
    bin->loadFile("fake:a");
    EXPECT_EQ("first?fake:a second?fake:a ", log);
    EXPECT_EQ("fake:a ", files());
}

TEST_F(SourceBinTest, ARefusedFileIsNotLoaded)
{
    addSentry("strict", false);
    ::testing::internal::CaptureStdout();
    std::string const text =
        thrownBy<TarnMediaLibException>([this] { bin->loadFile("fake:a"); }).what();
    EXPECT_EQ("SourceBinSentry(strict) rejected file:fake:a\n",
              ::testing::internal::GetCapturedStdout());
    EXPECT_EQ("attempting to load a media not accepted by sentries.", text);
    EXPECT_EQ("", files());
    EXPECT_EQ(0, observer.calls());
}

TEST_F(SourceBinTest, TheFirstRefusalEndsTheAsking)
{
    addSentry("friendly", true);
    addSentry("strict", false);
    addSentry("stricter", false);
    ::testing::internal::CaptureStdout();
    EXPECT_THROW(bin->loadFile("fake:a"), TarnMediaLibException);
    EXPECT_EQ("SourceBinSentry(strict) rejected file:fake:a\n",
              ::testing::internal::GetCapturedStdout());
    EXPECT_EQ("friendly?fake:a strict?fake:a ", log);
}

TEST_F(SourceBinTest, ConsentIsSilent)
{
    addSentry("friendly", true);
    ::testing::internal::CaptureStdout();
    bin->loadFile("fake:a");
    EXPECT_EQ("", ::testing::internal::GetCapturedStdout());
}

TEST_F(SourceBinTest, SentriesAreNotAskedAboutALoadedFile)
{
    bin->loadFile("fake:a");
    addSentry("strict", false);
    EXPECT_TRUE(bin->loadFile("fake:a"));
    EXPECT_EQ("", log);
}

TEST_F(SourceBinTest, SentriesAreNotAskedAboutAnAddedSource)
{
    addSentry("strict", false);
    bin->addSource(load("fake:a"));
    EXPECT_EQ("fake:a ", files());
    EXPECT_EQ("", log);
}

TEST_F(SourceBinTest, NothingIsNoSourceAndNoSentry)
{
    EXPECT_STREQ("attempting to add an empty source",
                 thrownBy<TarnMediaLibException>([this] { bin->addSource(nullptr); }).what());
    EXPECT_STREQ("attempting to add an empty sentry",
                 thrownBy<TarnMediaLibException>([this] { bin->addSentry(nullptr); }).what());
    EXPECT_EQ("", files());
    EXPECT_EQ(0, observer.calls());
}

TEST_F(SourceBinTest, AnAdditionIsTold)
{
    bin->addSource(load("fake:a"));
    EXPECT_EQ(1, observer.calls());
}

TEST_F(SourceBinTest, ARemovalIsTold)
{
    boost::shared_ptr<Source> const source = bin->loadFile("fake:a");
    bin->loadFile("fake:b");
    bin->removeSource(source);
    EXPECT_EQ("fake:b ", files());
    EXPECT_EQ(3, observer.calls());
}

TEST_F(SourceBinTest, ASourceThatIsNotThereCannotBeRemoved)
{
    bin->loadFile("fake:a");
    boost::shared_ptr<Source const> const stranger = load("fake:a");
    auto const thrown = thrownBy<RemovalException>([&] { bin->removeSource(stranger); });
    EXPECT_STREQ("unable to remove clip", thrown.what());
    EXPECT_EQ(stranger, thrown.value());
    EXPECT_EQ("fake:a ", files());
    EXPECT_EQ(1, observer.calls());
}

TEST_F(SourceBinTest, OfTwoEntriesTheFirstIsRemoved)
{
    boost::shared_ptr<Source> const twice = bin->loadFile("fake:a");
    bin->loadFile("fake:b");
    bin->addSource(twice);
    bin->removeSource(twice);
    EXPECT_EQ("fake:b fake:a ", files());
}

TEST_F(SourceBinTest, NothingIsNeitherSourceNorSentry)
{
    EXPECT_THROW(bin->addSource(boost::shared_ptr<Source>()), TarnMediaLibException);
    EXPECT_THROW(bin->addSentry(boost::shared_ptr<SourceBinSentry>()), TarnMediaLibException);
    EXPECT_EQ("", files());
    EXPECT_TRUE(bin->loadFile("fake:a"));
}

TEST_F(SourceBinTest, ItIsAskedByFileName)
{
    boost::shared_ptr<Source> const source = bin->loadFile("fake:a");
    EXPECT_EQ(source, bin->sourceForFile("fake:a"));
    EXPECT_FALSE(bin->sourceForFile("fake:b"));
    EXPECT_TRUE(bin->isFileLoaded("fake:a"));
    EXPECT_FALSE(bin->isFileLoaded("fake:A"));
    EXPECT_FALSE(bin->isFileLoaded(""));
}

TEST_F(SourceBinTest, ItIsAskedBySource)
{
    boost::shared_ptr<Source> const source = bin->loadFile("fake:a");
    EXPECT_TRUE(bin->containsSource(source));
    EXPECT_FALSE(bin->containsSource(load("fake:a")));
    bin->removeSource(source);
    EXPECT_FALSE(bin->containsSource(source));
}

TEST_F(SourceBinTest, AFileWithANewNameIsFoundByIt)
{
    boost::shared_ptr<Source> const source = bin->loadFile("fake:a");
    source->changeFile("fake:./a");
    EXPECT_EQ(source, bin->loadFile("fake:./a"));
    EXPECT_FALSE(bin->isFileLoaded("fake:a"));
}

TEST_F(SourceBinTest, AReadersIteratorKeepsEditsOut)
{
    SourceBin const& read = *bin;
    std::unique_ptr<SourceBin::ConstSourceIterator> at(
        new SourceBin::ConstSourceIterator(read.begin()));
    OtherThread writer([this] { ReadWriteMutex::ScopedWriteLock lock(project->mutex()); });
    EXPECT_TRUE(writer.isWaiting());
    at.reset();
    EXPECT_TRUE(writer.finishes());
}

TEST_F(SourceBinTest, XmlOfAnEmptyBinIsTheNameAlone)
{
    EXPECT_EQ("<SourceBin id=\"#\"  >\n</SourceBin>\n", xmlOf(*bin));
}

TEST_F(SourceBinTest, XmlOfSourcesStandsTwoLevelsDeeper)
{
    bin->loadFile("fake:a");
    EXPECT_EQ("<SourceBin id=\"#\"  >\n"
              "  <Source id=\"#\" src=\"fake:a\" lastMod=\"not-a-date-time\" "
              "rect=\"(0,0,640,480)\" >\n"
              "   <SourceTrack range=\"(0,100)\" type=\"0\" editRate=\"30/1\" "
              "trackRect=\"(0,0,640,480)\" sampleRate=\"0/1\" bitDepth=\"0\" numChannels=\"0\"/>\n"
              "  </Source>\n"
              "</SourceBin>\n",
              xmlOf(*bin));
}

}  // namespace
}  // namespace test
}  // namespace tarn
