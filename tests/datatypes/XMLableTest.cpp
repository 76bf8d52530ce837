#include "datatypes/XMLable.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <stdexcept>
#include <string>

namespace tarn {
namespace test {

namespace {

class Element : public XMLable
{
public:
    void xmlName(XMLable::Options& options) const override { *options.stream << m_name; }
    void xmlAttributes(XMLable::Options& options) const override
    {
        *options.stream << m_attributes;
    }
    void xmlBody(XMLable::Options& options, int indent) const override
    {
        m_basePath = options.basePath;
        if (m_body) {
            m_body(options, indent);
        }
    }

    std::string m_name = "Element";
    std::string m_attributes;
    std::function<void(XMLable::Options&, int)> m_body;
    mutable std::string m_basePath = "not written yet";
};

/// Comes by its ident in two ways, as what has both an XML form and parameters does.
class WithParameters : public virtual XMLIdentified
{
};

class TwoWays : public Element, public WithParameters
{
};

std::string xmlWithIds(XMLable const& element)
{
    std::ostringstream out;
    element.toXML(out);
    return out.str();
}

std::string xmlWithIds(XMLable const& element, int indent, std::string const& extra)
{
    std::ostringstream out;
    XMLable::Options options{&out, ""};
    element.toXML(options, indent, extra);
    return out.str();
}

std::string ident(XMLIdentified const& object)
{
    return std::to_string(object.xmlIdent());
}

}  // namespace

TEST(XMLableTest, AnEmptyElementHasTwoBlanksAndBothTags)
{
    Element const element;
    EXPECT_EQ("<Element id=\"" + ident(element) + "\"  >\n</Element>\n", xmlWithIds(element));
}

TEST(XMLableTest, AttributesStandBetweenTwoBlanks)
{
    Element element;
    element.m_attributes = "a=\"1\" b=\"2\"";
    EXPECT_EQ("<Element id=\"" + ident(element) + "\" a=\"1\" b=\"2\" >\n</Element>\n",
              xmlWithIds(element));
}

TEST(XMLableTest, ExtraAttributesComeLastAndUnescaped)
{
    Element element;
    element.m_attributes = "a=\"1\"";
    EXPECT_EQ("<Element id=\"" + ident(element) + "\" a=\"1\" name=\"a&b\">\n</Element>\n",
              xmlWithIds(element, 0, "name=\"a&b\""));
}

TEST(XMLableTest, ALevelIsOneBlank)
{
    Element const element;
    EXPECT_EQ("   <Element id=\"" + ident(element) + "\"  >\n   </Element>\n",
              xmlWithIds(element, 3, ""));
}

TEST(XMLableTest, TheBodyStandsOneLevelDeeper)
{
    Element element;
    element.m_body = [](XMLable::Options& options, int indent) {
        *options.stream << XMLable::genIndent(indent) << "<Line>\n";
    };
    EXPECT_EQ(" <Element id=\"" + ident(element) + "\"  >\n  <Line>\n </Element>\n",
              xmlWithIds(element, 1, ""));
}

TEST(XMLableTest, AChildIsWrittenWithTheLevelOfTheBody)
{
    Element const child;
    Element parent;
    parent.m_name = "Parent";
    parent.m_body = [&child](XMLable::Options& options, int indent) {
        child.toXML(options, indent, "name=\"opacity\"");
    };
    EXPECT_EQ("<Parent id=\"" + ident(parent) + "\"  >\n <Element id=\"" + ident(child) +
                  "\"  name=\"opacity\">\n </Element>\n</Parent>\n",
              xmlWithIds(parent));
}

TEST(XMLableTest, AnEmptyNameIsNotCheckedFor)
{
    Element element;
    element.m_name = "";
    EXPECT_EQ("< id=\"" + ident(element) + "\"  >\n</>\n", xmlWithIds(element));
}

TEST(XMLableTest, AStreamAloneMeansAnEmptyBasePath)
{
    Element const element;
    xmlWithIds(element);
    EXPECT_EQ("", element.m_basePath);
}

TEST(XMLableTest, TheBasePathReachesTheBody)
{
    Element const element;
    std::ostringstream out;
    XMLable::Options options{&out, "/home/films"};
    element.toXML(options, 0, "");
    EXPECT_EQ("/home/films", element.m_basePath);
}

TEST(XMLableTest, BothWaysToAnIdentGiveTheSame)
{
    TwoWays const object;
    XMLable const& asElement = object;
    WithParameters const& asOther = object;
    EXPECT_EQ(asElement.xmlIdent(), asOther.xmlIdent());
    EXPECT_NE(std::string::npos, xmlWithIds(object).find("id=\"" + ident(asOther) + "\""));
}

TEST(XMLableTest, AnAssignedElementKeepsItsIdent)
{
    Element from;
    Element to;
    unsigned int const before = to.xmlIdent();
    to = from;
    EXPECT_EQ(before, to.xmlIdent());
}

TEST(XMLableTest, AStreamThatFailsSwallowsTheText)
{
    Element const element;
    std::ostringstream out;
    out.setstate(std::ios::failbit);
    EXPECT_NO_THROW(element.toXML(out));
    EXPECT_EQ("", out.str());
}

TEST(XMLableTest, WhatTheBodyThrowsPassesAndLeavesTheElementHalfWritten)
{
    Element element;
    element.m_body = [](XMLable::Options&, int) { throw std::runtime_error("class"); };
    std::ostringstream out;
    EXPECT_THROW(element.toXML(out), std::runtime_error);
    EXPECT_EQ("<Element id=\"" + ident(element) + "\"  >\n", out.str());
}

TEST(XMLableTest, IndentIsOneBlankALevelAndNeverLessThanNone)
{
    EXPECT_EQ("", XMLable::genIndent(0));
    EXPECT_EQ("    ", XMLable::genIndent(4));
    EXPECT_EQ("", XMLable::genIndent(-1));
}

}  // namespace test
}  // namespace tarn
