#include "commands/ChangeAttributeCmd.h"

#include "commands/CommandPair.h"
#include "commands/NullCmd.h"
#include "datatypes/ScreenMetaData.h"
#include "parameters/Attribute.h"
#include "support/ParameterEditTest.h"
#include "support/WatchingHandler.h"
#include "timeline/AudioMixer.h"
#include "timeline/VisualMixer.h"

#include <array>

namespace tarn {
namespace test {
namespace {

class ChangeAttributeCmdTest : public ParameterEditTest
{
protected:
    boost::shared_ptr<Command> setWidth(float value) const
    {
        return ChangeAttributeCmd<float>::create(visualMixer()->attributeWidth(), value);
    }
    float width() const { return visualMixer()->attributeWidth()->value(); }

    /// The values after execution, undo and redo.
    template <class T>
    std::array<T, 3> valuesOfEdit(boost::shared_ptr<Attribute<T>> const& attribute, T const& value)
    {
        project->execute(ChangeAttributeCmd<T>::create(attribute, value));
        T const executed = attribute->value();
        project->undo();
        T const undone = attribute->value();
        project->redo();
        return {executed, undone, attribute->value()};
    }

    template <class T>
    boost::shared_ptr<Attribute<T>> attribute(T const& value) const
    {
        return boost::shared_ptr<Attribute<T>>(new Attribute<T>(value, lock()));
    }
};

TEST_F(ChangeAttributeCmdTest, GivesTheAttributeAnotherValue)
{
    float const before = width();
    EXPECT_TRUE(edits(setWidth(1280)));
    EXPECT_EQ(1280.0f, width());
    project->undo();
    EXPECT_EQ(before, width());
}

TEST_F(ChangeAttributeCmdTest, WorksForDoubles)
{
    EXPECT_EQ((std::array<double, 3>{2.5, 1.5, 2.5}), valuesOfEdit<double>(attribute(1.5), 2.5));
}

TEST_F(ChangeAttributeCmdTest, WorksForUnsignedNumbers)
{
    EXPECT_EQ((std::array<unsigned, 3>{2, 1, 2}), valuesOfEdit<unsigned>(attribute(1u), 2u));
}

TEST_F(ChangeAttributeCmdTest, WorksForTexts)
{
    EXPECT_EQ((std::array<std::string, 3>{"new", "old", "new"}),
              valuesOfEdit<std::string>(attribute(std::string("old")), "new"));
}

TEST_F(ChangeAttributeCmdTest, WorksForPoints)
{
    Point const from(1, 2, 3);
    Point const to(4, 5, 6);
    EXPECT_EQ((std::array<Point, 3>{to, from, to}), valuesOfEdit<Point>(attribute(from), to));
}

TEST_F(ChangeAttributeCmdTest, WorksForRectangles)
{
    Rect<float> const from(1, 2, 3, 4);
    Rect<float> const to(5, 6, 7, 8);
    EXPECT_EQ((std::array<Rect<float>, 3>{to, from, to}),
              valuesOfEdit<Rect<float>>(attribute(from), to));
}

TEST_F(ChangeAttributeCmdTest, WorksForScreenMetaData)
{
    using Data = boost::shared_ptr<ScreenMetaData const>;
    Data const data(
        ScreenMetaData::create(lock(), boost::weak_ptr<ProjectEditRate const>(project)));
    EXPECT_EQ((std::array<Data, 3>{data, Data(), data}),
              valuesOfEdit<Data>(attribute(Data()), data));
}

TEST_F(ChangeAttributeCmdTest, TheSameValueIsAStepAsWell)
{
    EXPECT_TRUE(edits(setWidth(width())));
}

TEST_F(ChangeAttributeCmdTest, ObserversHearOfItAndOfItsUndo)
{
    boost::shared_ptr<Attribute<double>> const number = attribute(1.5);
    CountingObserver observer;
    number->attach(&observer);
    project->execute(ChangeAttributeCmd<double>::create(number, 2.5));
    EXPECT_EQ(1, observer.calls());
    project->undo();
    EXPECT_EQ(2, observer.calls());
    number->detach(&observer);
}

TEST_F(ChangeAttributeCmdTest, AnEmptyAttributeIsRefused)
{
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        ChangeAttributeCmd<float>::create(boost::shared_ptr<Attribute<float>>(), 1),
        "attempting to edit an empty pointer"));
}

TEST_F(ChangeAttributeCmdTest, TwoOnOneAttributeBecomeOneToTheLaterValue)
{
    float const before = width();
    drag(setWidth(800), setWidth(1280));
    EXPECT_EQ("ChangeAttributeCmd", project->commandState().undoTop()->description().substr(1, 18));
    EXPECT_EQ(1280.0f, width());
    project->undo();
    EXPECT_EQ(before, width());
    project->redo();
    EXPECT_EQ(1280.0f, width());
}

TEST_F(ChangeAttributeCmdTest, TwoOnDifferentAttributesGroup)
{
    boost::shared_ptr<Command> const both = setWidth(800)->combine(
        ChangeAttributeCmd<float>::create(visualMixer()->attributeHeight(), 600));
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(both));
}

TEST_F(ChangeAttributeCmdTest, IsWrittenWithTheAttributeAndTheEscapedValue)
{
    boost::shared_ptr<Attribute<std::string>> const text = attribute(std::string("old"));
    boost::shared_ptr<Command> const command =
        ChangeAttributeCmd<std::string>::create(text, "a & b");
    EXPECT_EQ("<ChangeAttributeCmd id=\"" + std::to_string(command->xmlIdent()) +
                  "\" attribute=\"" + std::to_string(text->xmlIdent()) +
                  "\" value=\"a &amp; b\" >\n</ChangeAttributeCmd>\n",
              command->description());
}

TEST_F(ChangeAttributeCmdTest, AWrappingHostSeesItDoneUndoneAndRedone)
{
    std::string log;
    WatchingHandler const watch(
        *project, [&log](auto const& primitive, auto const&) { log += primitive + ' '; });
    project->execute(setWidth(800));
    project->undo();
    project->redo();
    EXPECT_EQ("changeAttribute changeAttribute changeAttribute ", log);
}

TEST_F(ChangeAttributeCmdTest, ACloneChangesOnItsOwn)
{
    boost::shared_ptr<Command> const copy(setWidth(800)->clone());
    EXPECT_TRUE(edits(copy));
    EXPECT_EQ(800.0f, width());
}

TEST_F(ChangeAttributeCmdTest, WithACommandOfAnotherKindItGroups)
{
    boost::shared_ptr<Command> const both = setWidth(800)->combine(NullCmd::create());
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(both));
}

}  // namespace
}  // namespace test
}  // namespace tarn
