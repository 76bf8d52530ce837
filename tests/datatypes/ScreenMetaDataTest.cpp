#include "datatypes/ScreenMetaData.h"

#include "datatypes/FileRepresentation.h"
#include "datatypes/ScreenMetaDataLoader.h"
#include "exceptions/TarnMediaLibException.h"
#include "parameters/LeftParameter.h"
#include "support/FakeProject.h"
#include "support/OtherThread.h"
#include "support/Thrown.h"
#include "support/Xml.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <sstream>
#include <stdexcept>
#include <thread>
#include <vector>

namespace tarn {
namespace test {
namespace {

/// Notes what it is asked for and answers with a parameter of that name.
class FakeLoader : public ScreenMetaDataLoader
{
public:
    boost::shared_ptr<ParameterInterface> loadParameter(
        std::string const& absoluteFile, std::string const& paramName,
        boost::weak_ptr<ThreadSafe const> const& owner,
        boost::weak_ptr<ProjectEditRate const> const& editRate) override
    {
        log.push_back(paramName + " from " + absoluteFile);
        lockOwner = owner;
        rate = editRate;
        if (failing) {
            throw std::runtime_error("no such format");
        }
        if (empty) {
            return boost::shared_ptr<ParameterInterface>();
        }
        return boost::shared_ptr<ParameterInterface>(
            new LeftParameter<std::string>(owner, paramName));
    }

    std::vector<std::string> log;
    boost::weak_ptr<ThreadSafe const> lockOwner;
    boost::weak_ptr<ProjectEditRate const> rate;
    bool failing = false;
    bool empty = false;
};

/// Answers when two threads have asked.
class MeetingLoader : public ScreenMetaDataLoader
{
public:
    boost::shared_ptr<ParameterInterface> loadParameter(
        std::string const&, std::string const& paramName,
        boost::weak_ptr<ThreadSafe const> const& owner,
        boost::weak_ptr<ProjectEditRate const> const&) override
    {
        for (++numAsked; numAsked < 2;) {
            std::this_thread::yield();
        }
        return boost::shared_ptr<ParameterInterface>(
            new LeftParameter<std::string>(owner, paramName));
    }

    std::atomic<int> numAsked{0};
};

class FakeFile : public FileRepresentation
{
public:
    explicit FakeFile(std::string const& container) : m_container(container) {}

    std::string fileName() const override { return "/never/asked"; }
    std::string containerFileName() const override { return m_container; }

private:
    std::string m_container;
};

using Log = std::vector<std::string>;

class ScreenMetaDataTest : public ::testing::Test
{
protected:
    ScreenMetaDataTest() { ScreenMetaData::setLazyLoader(&loader); }
    ~ScreenMetaDataTest() override { ScreenMetaData::setLazyLoader(nullptr); }

    boost::weak_ptr<FileRepresentation const> weakParent() const { return parent; }
    boost::weak_ptr<ProjectEditRate const> rate() const { return project; }
    void nameAll(std::string const& folder) const
    {
        data->setTopmostWindowCoordinates(folder + "frontmost.dat");
        data->setCursorLocation(folder + "cursorlocation.dat");
        data->setCursorAction(folder + "cursoraction.dat");
        data->setDirtyRects(folder + "dirtyrect.dat");
    }
    std::string xmlWithBase(std::string const& basePath) const
    {
        std::ostringstream out;
        XMLable::Options options{&out, basePath};
        data->toXML(options, 0, "");
        return withoutIds(out.str());
    }
    static std::string xmlOfNames(std::string const& topmost, std::string const& location,
                                  std::string const& action, std::string const& rects)
    {
        return "<ScreenMetaData id=\"#\"  >\n"
               " <ParameterFile filename=\"" +
               topmost +
               "\" paramName=\"topmostWindowCoordinates\"/>\n"
               " <ParameterFile filename=\"" +
               location +
               "\" paramName=\"cursorLocation\"/>\n"
               " <ParameterFile filename=\"" +
               action +
               "\" paramName=\"cursorAction\"/>\n"
               " <ParameterFile filename=\"" +
               rects +
               "\" paramName=\"dirtyRects\"/>\n"
               "</ScreenMetaData>\n";
    }

    FakeLoader loader;
    boost::shared_ptr<FakeProject> project = FakeProject::create();
    boost::shared_ptr<FakeFile> parent = boost::make_shared<FakeFile>("/x/y");
    boost::shared_ptr<ScreenMetaData> data{
        ScreenMetaData::create(project->weak(), weakParent(), rate())};
};

TEST_F(ScreenMetaDataTest, ANewObjectHasNoNamesAndIsNotValid)
{
    EXPECT_FALSE(data->isValid());
    EXPECT_EQ("", data->topmostWindowCoordinatesFilename());
    EXPECT_EQ("", data->cursorLocationFilename());
    EXPECT_EQ("", data->cursorActionFilename());
    EXPECT_EQ("", data->dirtyRectsFilename());
}

TEST_F(ScreenMetaDataTest, TheFourthNameMakesItValid)
{
    data->setTopmostWindowCoordinates("1");
    data->setCursorLocation("2");
    data->setCursorAction("3");
    EXPECT_FALSE(data->isValid());
    data->setDirtyRects("4");
    EXPECT_TRUE(data->isValid());
}

TEST_F(ScreenMetaDataTest, TheOrderOfTheNamesDoesNotMatter)
{
    data->setDirtyRects("4");
    data->setCursorAction("3");
    data->setCursorLocation("2");
    EXPECT_FALSE(data->isValid());
    data->setTopmostWindowCoordinates("1");
    EXPECT_TRUE(data->isValid());
}

TEST_F(ScreenMetaDataTest, ANameTakenBackMakesItInvalid)
{
    nameAll("/r/");
    data->setCursorAction("");
    EXPECT_FALSE(data->isValid());
    nameAll("/r/");
    data->setCursorLocation("");
    EXPECT_FALSE(data->isValid());
}

TEST_F(ScreenMetaDataTest, NamesAreKeptAsGiven)
{
    data->setTopmostWindowCoordinates("a/../b");
    data->setCursorLocation("/c//d");
    data->setCursorAction(" e ");
    data->setDirtyRects("f&g");
    EXPECT_EQ("a/../b", data->topmostWindowCoordinatesFilename());
    EXPECT_EQ("/c//d", data->cursorLocationFilename());
    EXPECT_EQ(" e ", data->cursorActionFilename());
    EXPECT_EQ("f&g", data->dirtyRectsFilename());
}

TEST_F(ScreenMetaDataTest, EachAccessorLoadsItsOwnFileUnderItsOwnName)
{
    nameAll("/r/");
    data->topmostWindowCoordinates();
    data->cursorLocation();
    data->cursorAction();
    data->dirtyRects();
    EXPECT_EQ((Log{"topmostWindowCoordinates from /r/frontmost.dat",
                   "cursorLocation from /r/cursorlocation.dat",
                   "cursorAction from /r/cursoraction.dat", "dirtyRects from /r/dirtyrect.dat"}),
              loader.log);
}

TEST_F(ScreenMetaDataTest, NothingIsLoadedBeforeItIsAskedFor)
{
    nameAll("/r/");
    EXPECT_TRUE(loader.log.empty());
}

TEST_F(ScreenMetaDataTest, AParameterIsLoadedOnce)
{
    nameAll("/r/");
    boost::shared_ptr<ParameterInterface> const first = data->cursorAction();
    ASSERT_TRUE(first);
    EXPECT_EQ(first, data->cursorAction());
    EXPECT_EQ(1u, loader.log.size());
}

TEST_F(ScreenMetaDataTest, EachOfTheFourIsKept)
{
    nameAll("/r/");
    EXPECT_EQ(data->topmostWindowCoordinates(), data->topmostWindowCoordinates());
    EXPECT_EQ(data->cursorLocation(), data->cursorLocation());
    EXPECT_EQ(data->dirtyRects(), data->dirtyRects());
    EXPECT_EQ(3u, loader.log.size());
}

TEST_F(ScreenMetaDataTest, TheLoaderIsToldProjectAndEditRate)
{
    nameAll("/r/");
    data->dirtyRects();
    EXPECT_EQ(project, loader.lockOwner.lock());
    EXPECT_EQ(project, loader.rate.lock());
}

TEST_F(ScreenMetaDataTest, ARelativeNameLiesInTheParentsContainer)
{
    data->setTopmostWindowCoordinates("a/b/frontmost.dat");
    data->topmostWindowCoordinates();
    EXPECT_EQ(Log{"topmostWindowCoordinates from /x/y/frontmost.dat"}, loader.log);
}

TEST_F(ScreenMetaDataTest, AnAbsoluteNameIsUsedWhateverTheParentSays)
{
    data->setCursorLocation("/r/../q/cursorlocation.dat");
    data->cursorLocation();
    EXPECT_EQ(Log{"cursorLocation from /r/../q/cursorlocation.dat"}, loader.log);
}

TEST_F(ScreenMetaDataTest, AnAbsoluteNameNeedsNoParent)
{
    data.reset(ScreenMetaData::create(project->weak(), rate()));
    nameAll("/r/");
    EXPECT_TRUE(data->cursorAction());
}

TEST_F(ScreenMetaDataTest, NoNameIsTheContainerItself)
{
    data->cursorAction();
    EXPECT_EQ(Log{"cursorAction from /x/y"}, loader.log);
}

TEST_F(ScreenMetaDataTest, ARelativeNameWithoutAParentIsRefused)
{
    data.reset(ScreenMetaData::create(project->weak(), rate()));
    nameAll("");
    EXPECT_THROW(data->topmostWindowCoordinates(), boost::bad_weak_ptr);
    EXPECT_THROW(data->cursorLocation(), boost::bad_weak_ptr);
    EXPECT_THROW(data->cursorAction(), boost::bad_weak_ptr);
    EXPECT_THROW(data->dirtyRects(), boost::bad_weak_ptr);
    EXPECT_TRUE(loader.log.empty());
}

TEST_F(ScreenMetaDataTest, ARelativeNameOfAParentThatIsGoneIsRefused)
{
    nameAll("");
    parent.reset();
    EXPECT_THROW(data->cursorAction(), boost::bad_weak_ptr);
}

TEST_F(ScreenMetaDataTest, ANewParentGivesANewPlace)
{
    boost::shared_ptr<FakeFile> const other = boost::make_shared<FakeFile>("/other");
    nameAll("");
    data->setParent(boost::weak_ptr<FileRepresentation const>(other));
    data->cursorAction();
    EXPECT_EQ(Log{"cursorAction from /other/cursoraction.dat"}, loader.log);
}

TEST_F(ScreenMetaDataTest, ANewNameDoesNotDropWhatIsLoaded)
{
    nameAll("/r/");
    boost::shared_ptr<ParameterInterface> const loaded = data->dirtyRects();
    data->setDirtyRects("/q/dirtyrect.dat");
    EXPECT_EQ(loaded, data->dirtyRects());
    EXPECT_EQ(1u, loader.log.size());
}

TEST_F(ScreenMetaDataTest, WithoutALoaderTheFourAreRefused)
{
    ScreenMetaData::setLazyLoader(nullptr);
    nameAll("/r/");
    std::string const text = "attempting to lazy load screen meta data without a loader.";
    auto const textOf = [](std::function<void()> const& action) {
        return std::string(thrownBy<TarnMediaLibException>(action).what());
    };
    EXPECT_EQ(text, textOf([this] { data->topmostWindowCoordinates(); }));
    EXPECT_EQ(text, textOf([this] { data->cursorLocation(); }));
    EXPECT_EQ(text, textOf([this] { data->cursorAction(); }));
    EXPECT_EQ(text, textOf([this] { data->dirtyRects(); }));
}

TEST_F(ScreenMetaDataTest, WithoutALoaderEvenALoadedOneIsRefused)
{
    nameAll("/r/");
    data->dirtyRects();
    ScreenMetaData::setLazyLoader(nullptr);
    EXPECT_THROW(data->dirtyRects(), TarnMediaLibException);
}

TEST_F(ScreenMetaDataTest, WithoutALoaderTheMissingParentIsNotMet)
{
    data.reset(ScreenMetaData::create(project->weak(), rate()));
    ScreenMetaData::setLazyLoader(nullptr);
    EXPECT_THROW(data->cursorAction(), TarnMediaLibException);
}

TEST_F(ScreenMetaDataTest, WithoutALoaderTheRestStillWorks)
{
    ScreenMetaData::setLazyLoader(nullptr);
    EXPECT_FALSE(data->isValid());
    nameAll("/r/");
    EXPECT_TRUE(data->isValid());
    EXPECT_NE(std::string::npos, xmlOf(*data).find("filename=\"/r/dirtyrect.dat\""));
}

TEST_F(ScreenMetaDataTest, WhatTheLoaderThrowsPassesAndTheNextCallLoads)
{
    nameAll("/r/");
    loader.failing = true;
    EXPECT_STREQ("no such format",
                 thrownBy<std::runtime_error>([this] { data->cursorAction(); }).what());
    loader.failing = false;
    EXPECT_TRUE(data->cursorAction());
    EXPECT_EQ(2u, loader.log.size());
}

TEST_F(ScreenMetaDataTest, AnEmptyAnswerIsAskedForAgain)
{
    nameAll("/r/");
    loader.empty = true;
    EXPECT_FALSE(data->cursorAction());
    loader.empty = false;
    EXPECT_TRUE(data->cursorAction());
    EXPECT_EQ(2u, loader.log.size());
}

TEST_F(ScreenMetaDataTest, TheLoaderIsTheOneSet)
{
    EXPECT_EQ(&loader, ScreenMetaData::lazyLoader());
    ScreenMetaData::setLazyLoader(nullptr);
    EXPECT_EQ(nullptr, ScreenMetaData::lazyLoader());
}

TEST_F(ScreenMetaDataTest, ItsLockIsTheProjects)
{
    EXPECT_EQ(&project->mutex(), &data->mutex());
}

TEST_F(ScreenMetaDataTest, WithoutItsProjectItHasNoLock)
{
    project.reset();
    EXPECT_THROW(data->mutex(), boost::bad_weak_ptr);
}

TEST_F(ScreenMetaDataTest, XmlListsTheFilesInTheirOrder)
{
    nameAll("/r/");
    EXPECT_EQ(xmlOfNames("/r/frontmost.dat", "/r/cursorlocation.dat", "/r/cursoraction.dat",
                         "/r/dirtyrect.dat"),
              xmlOf(*data));
}

TEST_F(ScreenMetaDataTest, XmlListsEmptyNamesToo)
{
    EXPECT_EQ(xmlOfNames("", "", "", ""), xmlOf(*data));
    EXPECT_EQ(xmlOfNames("", "", "", ""), xmlWithBase("/r"));
}

TEST_F(ScreenMetaDataTest, XmlWritesAbsoluteNamesRelativeToTheBase)
{
    data->setTopmostWindowCoordinates("/r/a/frontmost.dat");
    data->setCursorLocation("r/a/cursorlocation.dat");
    data->setCursorAction("/q/cursoraction.dat");
    // A relative name stays; one outside the base keeps all its text behind the dot.
    EXPECT_EQ(xmlOfNames("./a/frontmost.dat", "r/a/cursorlocation.dat", "./q/cursoraction.dat", ""),
              xmlWithBase("/r"));
}

TEST_F(ScreenMetaDataTest, XmlEscapesNames)
{
    data->setTopmostWindowCoordinates("/r/a&b");
    EXPECT_EQ(xmlOfNames("/r/a&amp;b", "", "", ""), xmlOf(*data));
    EXPECT_EQ(xmlOfNames("./a&amp;b", "", "", ""), xmlWithBase("/r"));
}

}  // namespace
TEST_F(ScreenMetaDataTest, ThreadsThatAskAtTheSameTimeBothLoadAndOneStays)
{
    MeetingLoader meeting;
    ScreenMetaData::setLazyLoader(&meeting);
    data->setCursorLocation("/cursor");
    boost::shared_ptr<ParameterInterface> theirs;
    OtherThread other([&] { theirs = data->cursorLocation(); });
    boost::shared_ptr<ParameterInterface> const mine = data->cursorLocation();
    other.join();
    EXPECT_NE(mine, theirs);
    boost::shared_ptr<ParameterInterface> const kept = data->cursorLocation();
    EXPECT_TRUE(kept == mine || kept == theirs);
    EXPECT_EQ(2, meeting.numAsked);
}

}  // namespace test
}  // namespace tarn
