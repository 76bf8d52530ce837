#include "datatypes/XmlText.h"

#include "datatypes/Point.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <iomanip>
#include <limits>
#include <locale>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

namespace tarn {
namespace test {

namespace {

using Preparing = std::function<void(std::ostream&)>;

/// A locale in which every number of more than two digits looks different.
class Grouping : public std::numpunct<char>
{
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '_'; }
    std::string do_grouping() const override { return "\2"; }
};

std::locale grouping()
{
    return std::locale(std::locale::classic(), new Grouping);
}

/// Writes what XML is made of, to a stream or to an XmlText.
template <class Out>
void writeSamples(Out& out)
{
    out << std::string() << "<" << std::string("name") << ' ' << 'c';
    out << 0 << -1 << 12345678 << std::numeric_limits<int>::min() << 4294967295u;
    out << std::numeric_limits<long>::min() << std::numeric_limits<unsigned long>::max();
    out << std::numeric_limits<long long>::min() << std::numeric_limits<unsigned long long>::max();
    out << 0.0 << -0.0 << 1.0 << -25.0 << 0.5 << 999999.0 << 999999.4 << 999999.5 << 1e6 << -1e6;
    out << 1e-4 << 1e-5 << 1.0 / 3 << 123456789.0 << 1e300 << 5e-324;
    out << std::numeric_limits<double>::infinity() << -std::numeric_limits<double>::infinity();
    out << std::nan("") << -std::nan("") << 0.1f << 16777217.0f << true << Point(1.5, 2, 1e7);
    out << static_cast<void const*>(nullptr) << std::string(9000, 'x') << "\n";
}

std::string byStream(Preparing const& prepare)
{
    std::ostringstream out;
    prepare(out);
    writeSamples(out);
    return out.str();
}

/// By an XmlText, with a buffer behind the stream if it may stand there.
std::string byText(Preparing const& prepare)
{
    std::ostringstream out;
    prepare(out);
    XMLable::Options options{&out, ""};
    if (XmlBuffer::mayStandBehind(out)) {
        XmlBuffer::Loan loan(out);
        XmlText text(options);
        writeSamples(text);
        loan.end();
    } else {
        XmlText text(options);
        writeSamples(text);
    }
    return out.str();
}

/// By an XmlText with a buffer behind the stream, whose state changes after that was put there.
std::string byTextChangedLater(Preparing const& prepare)
{
    std::ostringstream out;
    XMLable::Options options{&out, ""};
    XmlBuffer::Loan loan(out);
    prepare(out);
    XmlText text(options);
    writeSamples(text);
    loan.end();
    return out.str();
}

struct State
{
    char const* name;
    Preparing prepare;
};

std::ostream& other()
{
    static std::ostringstream s_instance;
    return s_instance;
}

std::vector<State> const& states()
{
    using S = std::ostream;
    static std::vector<State> const s_instance{
        {"default", [](S&) {}},
        {"hex", [](S& out) { out << std::hex; }},
        {"oct and base", [](S& out) { out << std::oct << std::showbase; }},
        {"plus signs", [](S& out) { out << std::showpos; }},
        {"points", [](S& out) { out << std::showpoint; }},
        {"capitals", [](S& out) { out << std::uppercase; }},
        {"words", [](S& out) { out << std::boolalpha; }},
        {"fixed", [](S& out) { out << std::fixed; }},
        {"scientific", [](S& out) { out << std::scientific; }},
        {"hexfloat", [](S& out) { out << std::hexfloat; }},
        {"no digits", [](S& out) { out << std::setprecision(0); }},
        {"three digits", [](S& out) { out << std::setprecision(3); }},
        {"all digits", [](S& out) { out << std::setprecision(17); }},
        {"flushing", [](S& out) { out << std::unitbuf; }},
        {"no skipping", [](S& out) { out << std::noskipws; }},
        {"width", [](S& out) { out << std::setw(12); }},
        {"width to the left",
         [](S& out) { out << std::setw(12) << std::setfill('*') << std::left; }},
        {"fill", [](S& out) { out << std::setfill('*'); }},
        {"locale", [](S& out) { out.imbue(grouping()); }},
        {"exceptions", [](S& out) { out.exceptions(std::ios_base::badbit); }},
        {"tied", [](S& out) { out.tie(&other()); }},
        {"failed", [](S& out) { out.setstate(std::ios_base::failbit); }},
    };
    return s_instance;
}

/// Doubles of every size, by their bits.
std::vector<double> manyDoubles()
{
    std::vector<double> doubles;
    std::uint64_t bits = 88172645463325252ull;
    for (int i = 0; i < 20000; ++i) {
        bits ^= bits << 13;
        bits ^= bits >> 7;
        bits ^= bits << 17;
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        doubles.push_back(value);
        doubles.push_back(static_cast<double>(static_cast<std::int64_t>(bits) >> (i % 60)) / 1000);
    }
    return doubles;
}

template <class Out>
void writeAll(Out& out, std::vector<double> const& doubles)
{
    for (double const value : doubles)
        out << value << ' ';
}

}  // namespace

class XmlTextStateTest : public ::testing::TestWithParam<State>
{
};

TEST_P(XmlTextStateTest, WritesWhatTheStreamWouldWrite)
{
    EXPECT_EQ(byStream(GetParam().prepare), byText(GetParam().prepare));
}

TEST_P(XmlTextStateTest, WritesWhatTheStreamWouldWriteIfItsStateChangesBehindABuffer)
{
    EXPECT_EQ(byStream(GetParam().prepare), byTextChangedLater(GetParam().prepare));
}

INSTANTIATE_TEST_SUITE_P(EveryState, XmlTextStateTest, ::testing::ValuesIn(states()),
                         [](::testing::TestParamInfo<State> const& tested) {
                             std::string name = tested.param.name;
                             for (char& c : name)
                                 c = c == ' ' ? '_' : c;
                             return name;
                         });

TEST(XmlTextTest, ADefaultStreamGoesTheShortWayAndOthersDoNot)
{
    std::vector<std::string> shortOnes;
    for (State const& state : states()) {
        std::ostringstream out;
        state.prepare(out);
        if (XmlBuffer::mayStandBehind(out))
            shortOnes.push_back(state.name);
    }
    EXPECT_EQ((std::vector<std::string>{"default", "fill"}), shortOnes);
}

TEST(XmlTextTest, WritesEveryDoubleAsTheStreamDoes)
{
    std::vector<double> const doubles = manyDoubles();
    std::ostringstream wanted;
    writeAll(wanted, doubles);
    std::ostringstream out;
    XMLable::Options options{&out, ""};
    XmlBuffer::Loan loan(out);
    XmlText text(options);
    writeAll(text, doubles);
    loan.end();
    EXPECT_EQ(wanted.str(), out.str());
}

TEST(XmlTextTest, AnIndentIsOnePieceToWhichTheWidthApplies)
{
    std::ostringstream out;
    XMLable::Options options{&out, ""};
    out << std::setw(4);
    XmlText(options).indent(1) << "<" << 7;
    EXPECT_EQ("    <7", out.str());
}

}  // namespace test
}  // namespace tarn
