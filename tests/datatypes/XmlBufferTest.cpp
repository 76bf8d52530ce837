#include "datatypes/XmlBuffer.h"

#include "datatypes/XMLable.h"

#include <gtest/gtest.h>

#include <functional>
#include <iomanip>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <streambuf>
#include <string>

namespace tarn {
namespace test {

namespace {

/// An element whose body is told in place.
class ToldElement : public XMLable
{
public:
    using Body = std::function<void(XMLable::Options&)>;

    explicit ToldElement(Body const& body) : m_body(body) {}

    void xmlName(XMLable::Options& options) const override { *options.stream << "E"; }
    void xmlAttributes(XMLable::Options&) const override {}
    void xmlBody(XMLable::Options& options, int) const override { m_body(options); }

    std::string opening() const { return "<E id=\"" + std::to_string(xmlIdent()) + "\"  >\n"; }

private:
    Body m_body;
};

/// Takes so many characters and no more.
class ShortTarget : public std::streambuf
{
public:
    explicit ShortTarget(std::size_t length, bool throws) : m_left(length), m_throws(throws) {}

    std::string taken;

protected:
    int_type overflow(int_type c) override
    {
        if (m_left == 0) {
            if (m_throws)
                throw std::runtime_error("disk");
            return traits_type::eof();
        }
        --m_left;
        taken += traits_type::to_char_type(c);
        return c;
    }

private:
    std::size_t m_left;
    bool m_throws;
};

std::string textOf(ToldElement const& element)
{
    std::ostringstream out;
    element.toXML(out);
    return out.str();
}

}  // namespace

TEST(XmlBufferTest, TheOptionsStillNameTheStreamThatWasGiven)
{
    std::ostringstream out;
    std::ostream* seen = nullptr;
    ToldElement const element([&seen](XMLable::Options& options) { seen = options.stream; });
    element.toXML(out);
    EXPECT_EQ(&out, seen);
}

TEST(XmlBufferTest, StandsBehindTheStreamOnlyWhileXmlIsWritten)
{
    std::ostringstream out;
    std::streambuf* const own = static_cast<std::ostream&>(out).rdbuf();
    bool stood = false;
    ToldElement const element([&stood](XMLable::Options& options) {
        stood = XmlBuffer::behind(*options.stream) != nullptr;
    });
    element.toXML(out);
    EXPECT_TRUE(stood);
    EXPECT_EQ(own, static_cast<std::ostream&>(out).rdbuf());
}

TEST(XmlBufferTest, WhatIsWrittenToTheStreamItselfKeepsItsPlace)
{
    ToldElement const inner(
        [](XMLable::Options& options) { *options.stream << "body" << std::flush; });
    ToldElement const outer([&inner](XMLable::Options& options) {
        *options.stream << 1 << '\n';
        inner.toXML(options, 0, "");
        options.stream->put('2').write("3\n", 2);
    });
    EXPECT_EQ(outer.opening() + "1\n" + inner.opening() + "body</E>\n23\n</E>\n", textOf(outer));
}

TEST(XmlBufferTest, TheStreamTellsItsPositionMeanwhile)
{
    std::ostringstream out;
    out << "12345";
    std::streamoff position = 0;
    ToldElement const element(
        [&position](XMLable::Options& options) { position = options.stream->tellp(); });
    element.toXML(out);
    EXPECT_EQ(5 + static_cast<std::streamoff>(element.opening().size()), position);
}

TEST(XmlBufferTest, AFormatSetInsideGoesOnBehindTheElement)
{
    ToldElement const element([](XMLable::Options& options) { *options.stream << std::hex; });
    std::ostringstream out;
    element.toXML(out);
    out << 255;
    EXPECT_EQ(element.opening() + "</E>\nff", out.str());
}

TEST(XmlBufferTest, AnotherStreamInTheOptionsIsWrittenToInstead)
{
    std::ostringstream aside;
    ToldElement const inner([](XMLable::Options&) {});
    ToldElement const outer([&](XMLable::Options& options) {
        XMLable::Options other = options;
        other.stream = &aside;
        inner.toXML(other, 0, "");
    });
    EXPECT_EQ(outer.opening() + "</E>\n", textOf(outer));
    EXPECT_EQ(inner.opening() + "</E>\n", aside.str());
}

TEST(XmlBufferTest, WhatWasWrittenBeforeAThrowArrives)
{
    ToldElement const element([](XMLable::Options& options) {
        *options.stream << "half";
        throw std::runtime_error("class");
    });
    std::ostringstream out;
    EXPECT_THROW(element.toXML(out), std::runtime_error);
    EXPECT_EQ(element.opening() + "half", out.str());
    out << "more";
    EXPECT_EQ(element.opening() + "halfmore", out.str());
}

TEST(XmlBufferTest, ATargetThatIsFullTurnsTheStreamBad)
{
    ToldElement const element([](XMLable::Options&) {});
    ShortTarget target(5, false);
    std::ostream out(&target);
    element.toXML(out);
    EXPECT_EQ(element.opening().substr(0, 5), target.taken);
    EXPECT_EQ(std::ios_base::badbit, out.rdstate());
}

TEST(XmlBufferTest, ATargetThatThrowsTurnsTheStreamBad)
{
    ToldElement const element([](XMLable::Options&) {});
    ShortTarget target(5, true);
    std::ostream out(&target);
    EXPECT_NO_THROW(element.toXML(out));
    EXPECT_EQ(element.opening().substr(0, 5), target.taken);
    EXPECT_EQ(std::ios_base::badbit, out.rdstate());
}

TEST(XmlBufferTest, LongTextsArriveWhole)
{
    std::string const text = std::string(8191, 'a') + std::string(30000, 'b') + "c";
    ToldElement const element(
        [&text](XMLable::Options& options) { *options.stream << text << text; });
    EXPECT_EQ(element.opening() + text + text + "</E>\n", textOf(element));
}

TEST(XmlBufferTest, ABadStateSetInsideStays)
{
    ToldElement const element([](XMLable::Options& options) {
        options.stream->setstate(std::ios_base::failbit);
        *options.stream << "swallowed";
    });
    std::ostringstream out;
    element.toXML(out);
    EXPECT_EQ(element.opening(), out.str());
    EXPECT_EQ(std::ios_base::failbit, out.rdstate());
}

TEST(XmlBufferTest, NeverStandsBehindTheStreamsOfTheProcess)
{
    EXPECT_FALSE(XmlBuffer::mayStandBehind(std::cout));
    EXPECT_FALSE(XmlBuffer::mayStandBehind(std::clog));
}

}  // namespace test
}  // namespace tarn
