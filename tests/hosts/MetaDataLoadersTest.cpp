#include "hosts/HostTest.h"

#include "commands/NullCmd.h"
#include "datatypes/ScreenMetaData.h"
#include "datatypes/ScreenMetaDataLoader.h"
#include "parameters/LeftParameter.h"

#include <vector>

namespace tarn {
namespace test {

namespace {

using Action = std::function<void()>;

class HostReader : public ScreenMetaDataLoader
{
public:
    HostReader() { ScreenMetaData::setLazyLoader(this); }
    ~HostReader() override { ScreenMetaData::setLazyLoader(nullptr); }

    boost::shared_ptr<ParameterInterface> loadParameter(
        std::string const&, std::string const& name, boost::weak_ptr<ThreadSafe const> const& owner,
        boost::weak_ptr<ProjectEditRate const> const&) override
    {
        ++calls;
        Action const copy = action;
        if (copy)
            copy();
        return boost::shared_ptr<ParameterInterface>(new LeftParameter<std::string>(owner, name));
    }

    Action action;
    int calls = 0;
};

}  // namespace

class MetaDataLoadersTest : public HostTest
{
protected:
    MetaDataLoadersTest()
    {
        given(k_strip);
        data.reset(ScreenMetaData::create(lock(), boost::weak_ptr<ProjectEditRate const>(project)));
        data->setTopmostWindowCoordinates("/nowhere/frontmost.dat");
        data->setCursorLocation("/nowhere/cursorlocation.dat");
        data->setCursorAction("/nowhere/cursoraction.dat");
        data->setDirtyRects("/nowhere/dirtyrect.dat");
    }

    using Getter = boost::shared_ptr<ParameterInterface> (ScreenMetaData::*)() const;
    std::vector<Getter> const all = {&ScreenMetaData::topmostWindowCoordinates,
                                     &ScreenMetaData::cursorLocation, &ScreenMetaData::cursorAction,
                                     &ScreenMetaData::dirtyRects};

    HostReader reader;
    boost::shared_ptr<ScreenMetaData> data;
};

TARN_WITH_EACH_FAULT(MetaDataLoadersTest);

TEST_P(MetaDataLoadersTest, WhatItThrowsPassesAndIsNotKept)
{
    for (Getter const& get : all) {
        reader.action = [this] { throwFault(fault()); };
        EXPECT_TRUE(throwsFault(fault(), [&] { ((*data).*get)(); }));
        reader.action = nullptr;
        int const calls = reader.calls;
        EXPECT_NE(nullptr, ((*data).*get)());
        EXPECT_NE(nullptr, ((*data).*get)());
        EXPECT_EQ(calls + 1, reader.calls);
    }
    EXPECT_TRUE(isAtRest());
}

TEST_P(MetaDataLoadersTest, NoLockIsHeldAndItMayEdit)
{
    for (Getter const& get : all) {
        reader.action = [this] {
            OtherThread writer(
                [this] { ReadWriteMutex::ScopedWriteLock const taken(project->mutex()); });
            EXPECT_TRUE(writer.finishes());
            project->execute(move("V1.b", +1));
            project->undo();
        };
        EXPECT_NE(nullptr, ((*data).*get)());
    }
    EXPECT_TRUE(isAtRest());
}

TEST_P(MetaDataLoadersTest, MayAskForAnotherAndTakeItselfAway)
{
    reader.action = [this] {
        reader.action = [] { ScreenMetaData::setLazyLoader(nullptr); };
        EXPECT_NE(nullptr, data->dirtyRects());
        ScreenMetaData::setLazyLoader(&reader);
    };
    boost::shared_ptr<ParameterInterface> const location = data->cursorLocation();
    EXPECT_EQ("cursorLocation", location->ident());
    reader.action = nullptr;
    EXPECT_EQ("dirtyRects", data->dirtyRects()->ident());
    EXPECT_EQ(2, reader.calls);
}

}  // namespace test
}  // namespace tarn
