#include "commands/SetAttributeValueCmd.h"

#include "support/CommandXml.h"
#include "support/CountingObserver.h"
#include "support/ModelTest.h"

#include "datatypes/ScreenMetaData.h"
#include "parameters/Attribute.h"

namespace tarn {
namespace test {

namespace {

class SetAttributeValueCmdTest : public ModelTest
{
protected:
    using MetaData = boost::shared_ptr<ScreenMetaData const>;
    using SetMetaData = SetAttributeValueCmd<MetaData>;

    MetaData newMetaData() const
    {
        return MetaData(
            ScreenMetaData::create(lock(), boost::weak_ptr<ProjectEditRate const>(project)));
    }

    boost::shared_ptr<Attribute<MetaData>> attributeOf(MetaData const& value) const
    {
        return boost::shared_ptr<Attribute<MetaData>>(new Attribute<MetaData>(value, lock()));
    }
};

}  // namespace

TEST_F(SetAttributeValueCmdTest, SetsTheValueAndUndoGivesTheOldOneBack)
{
    MetaData const before = newMetaData();
    MetaData const after = newMetaData();
    boost::shared_ptr<Attribute<MetaData>> const attribute = attributeOf(before);
    EXPECT_TRUE(project->execute(SetMetaData::create(attribute, after)));
    EXPECT_EQ(after, attribute->value());
    project->undo();
    EXPECT_EQ(before, attribute->value());
    project->redo();
    EXPECT_EQ(after, attribute->value());
}

TEST_F(SetAttributeValueCmdTest, RedoNotesTheOldValueAnew)
{
    boost::shared_ptr<Attribute<MetaData>> const attribute = attributeOf(newMetaData());
    project->execute(SetMetaData::create(attribute, newMetaData()));
    project->undo();
    MetaData const between = newMetaData();
    attribute->setValue(between);
    project->redo();
    project->undo();
    EXPECT_EQ(between, attribute->value());
}

TEST_F(SetAttributeValueCmdTest, TellsTheAttributesObserversOnTheWayThereAndBack)
{
    boost::shared_ptr<Attribute<MetaData>> const attribute = attributeOf(newMetaData());
    CountingObserver observer;
    attribute->attach(&observer);
    project->execute(SetMetaData::create(attribute, newMetaData()));
    EXPECT_EQ(1, observer.calls());
    project->undo();
    EXPECT_EQ(2, observer.calls());
    attribute->detach(&observer);
}

TEST_F(SetAttributeValueCmdTest, AnEmptyValueCanBeSetAndComesBack)
{
    MetaData const value = newMetaData();
    boost::shared_ptr<Attribute<MetaData>> const attribute = attributeOf(value);
    project->execute(SetMetaData::create(attribute, MetaData()));
    EXPECT_FALSE(attribute->value());
    project->undo();
    EXPECT_EQ(value, attribute->value());
}

TEST_F(SetAttributeValueCmdTest, PrintsItsBareNameAndWhereAttributeAndNewValueLie)
{
    MetaData const after = newMetaData();
    boost::shared_ptr<Attribute<MetaData>> const attribute = attributeOf(newMetaData());
    EXPECT_EQ(emptyElement("SetAttributeValueCmd", addressAttribute("attribute", attribute) + " " +
                                                       addressAttribute("value", after)),
              xmlOf(*SetMetaData::create(attribute, after)));
}

TEST_F(SetAttributeValueCmdTest, PrintsZeroForAnEmptyValue)
{
    boost::shared_ptr<Attribute<MetaData>> const attribute = attributeOf(newMetaData());
    EXPECT_EQ(emptyElement("SetAttributeValueCmd",
                           addressAttribute("attribute", attribute) + " value=\"0\""),
              xmlOf(*SetMetaData::create(attribute, MetaData())));
}

TEST_F(SetAttributeValueCmdTest, ACloneSetsTheSameValue)
{
    MetaData const before = newMetaData();
    MetaData const after = newMetaData();
    boost::shared_ptr<Attribute<MetaData>> const attribute = attributeOf(before);
    boost::shared_ptr<Command> const copy(SetMetaData::create(attribute, after)->clone());
    project->execute(copy);
    EXPECT_EQ(after, attribute->value());
    project->undo();
    EXPECT_EQ(before, attribute->value());
}

}  // namespace test
}  // namespace tarn
