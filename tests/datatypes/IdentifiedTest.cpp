#include "datatypes/Identified.h"

#include "parameters/Attribute.h"
#include "support/LockOwner.h"

#include <boost/smart_ptr/bad_weak_ptr.hpp>
#include <gtest/gtest.h>

namespace tarn {
namespace test {

namespace {

class Named : public Identified
{
public:
    explicit Named(boost::weak_ptr<ThreadSafe const> const& project) : Identified(project) {}
    Named(Named const& other) = default;
};

}  // namespace

TEST(IdentifiedTest, TheTextIsEmptyAtFirst)
{
    boost::shared_ptr<LockOwner> const project = LockOwner::create();
    Named const object(project);
    EXPECT_EQ("", object.identAttribute()->value());
}

TEST(IdentifiedTest, BothFormsReachTheSameAttribute)
{
    boost::shared_ptr<LockOwner> const project = LockOwner::create();
    Named object(project);
    object.identAttribute()->setValue("Intro");
    EXPECT_EQ("Intro", static_cast<Named const&>(object).identAttribute()->value());
}

TEST(IdentifiedTest, ACopyTakesTheText)
{
    boost::shared_ptr<LockOwner> const project = LockOwner::create();
    Named original(project);
    original.identAttribute()->setValue("Intro");
    Named const copy(original);
    EXPECT_EQ("Intro", copy.identAttribute()->value());
}

TEST(IdentifiedTest, NothingOfADeadProjectIsCopied)
{
    boost::shared_ptr<LockOwner> project = LockOwner::create();
    Named const untouched(project);
    Named const named(project);
    named.identAttribute();
    project.reset();
    EXPECT_THROW(Named{untouched}, boost::bad_weak_ptr);
    EXPECT_THROW(Named{named}, boost::bad_weak_ptr);
}

TEST(IdentifiedTest, ACopysTextChangesOnItsOwn)
{
    boost::shared_ptr<LockOwner> const project = LockOwner::create();
    Named original(project);
    Named copy(original);
    copy.identAttribute()->setValue("Outro");
    EXPECT_EQ("", original.identAttribute()->value());
}

}  // namespace test
}  // namespace tarn
