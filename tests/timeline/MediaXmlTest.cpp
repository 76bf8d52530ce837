#include "datatypes/Point.h"
#include "datatypes/ScreenMetaData.h"
#include "edgemods/EdgeModification.h"
#include "edgemods/FadeInFunc.h"
#include "edgemods/FadeOutFunc.h"
#include "effects/CompositeEffect.h"
#include "parameters/Attribute.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/LeftParameter.h"
#include "support/MediaKindTest.h"
#include "support/OneOfEachKind.h"
#include "support/Xml.h"
#include "timeline/AMFile.h"
#include "timeline/AudioTransition.h"
#include "timeline/Callout.h"
#include "timeline/IMFile.h"
#include "timeline/ImageTransition.h"
#include "timeline/TextBox.h"
#include "timeline/VMFile.h"

#include <set>
#include <sstream>
#include <string>

namespace tarn {
namespace test {
namespace {

/// A parameter with one key frame, at that many blanks of indent.
std::string parameter(std::size_t indent, std::string const& extra, std::string const& value)
{
    std::string const in(indent, ' ');
    return in + "<InterpolatingParam id=\"#\"  " + extra + ">\n" +      //
           in + " <Parameters>\n" +                                     //
           in + "  <Parameter id=\"#\"  name=\"interpolater\">\n" +     //
           in + "   <Keyframes>\n" +                                    //
           in + "    <Keyframe time=\"0\" value=\"linr\"/>\n" +         //
           in + "   </Keyframes>\n" +                                   //
           in + "  </Parameter>\n" +                                    //
           in + " </Parameters>\n" +                                    //
           in + " <Keyframes>\n" +                                      //
           in + "  <Keyframe time=\"0\" value=\"" + value + "\"/>\n" +  //
           in + " </Keyframes>\n" +                                     //
           in + "</InterpolatingParam>\n";
}

/// A group of parameters of equal value at two blanks of indent.
std::string group(std::string const& name, int count, std::string const& value)
{
    std::string text = "  <VectorParam id=\"#\"  name=\"" + name + "\">\n";
    for (int i = 0; i < count; ++i)
        text += parameter(3, "", value);
    return text + "  </VectorParam>\n";
}

std::string attribute(std::string const& name, std::string const& value)
{
    return "  <Attribute id=\"#\" value=\"" + value + "\" name=\"" + name + "\">\n  </Attribute>\n";
}

std::string const k_transformer =
    " <Transformer>\n" + group("translation", 3, "0") + group("rotation", 3, "0") +
    group("shear", 2, "0") + group("scale", 3, "1") + group("anchor", 3, "0") + " </Transformer>\n";
std::string const k_visualParameters = group("sourceCrop", 4, "0") + group("geometryCrop", 4, "0") +
                                       parameter(2, "name=\"opacity\"", "1");
std::string const k_soundParameters =
    parameter(2, "name=\"volume\"", "1") + parameter(2, "name=\"gain\"", "1");
std::string const k_noEdges = " <LeftEdgeMods length=\"0\">\n </LeftEdgeMods>\n"
                              " <RightEdgeMods length=\"0\">\n </RightEdgeMods>\n";

std::string parameters(std::string const& body)
{
    return " <Parameters>\n" + body + " </Parameters>\n";
}

std::string attributes(std::string const& body)
{
    return " <Attributes>\n" + body + " </Attributes>\n";
}

std::string text(std::string const& value)
{
    return "  <Parameter id=\"#\"  name=\"text\">\n"
           "   <Keyframes>\n"
           "    <Keyframe time=\"0\" value=\"" +
           value +
           "\"/>\n"
           "   </Keyframes>\n"
           "  </Parameter>\n";
}

/// The first line of the media's XML.
std::string head(Media const& media)
{
    std::string const xml = xmlOf(media);
    return xml.substr(0, xml.find('\n'));
}

/// The part of the media's XML from one text on up to the end of another.
std::string part(Media const& media, std::string const& from, std::string const& to)
{
    std::string const xml = xmlOf(media);
    std::size_t const start = xml.find(from);
    if (start == std::string::npos)
        return "";
    return xml.substr(start, xml.find(to, start) + to.size() - start);
}

class MediaXmlTest : public MediaKindTest
{
protected:
    boost::shared_ptr<AMFile> sound() const
    {
        return boost::shared_ptr<AMFile>(new AMFile(Range<long long>(500, 100), 48000, 24,
                                                    project->weak(), "a.wav",
                                                    std::set<unsigned int>{0, 1}));
    }
    boost::shared_ptr<VMFile> video() const
    {
        return boost::shared_ptr<VMFile>(new VMFile(Range<long long>(500, 100), project->weak(),
                                                    Rect<float>(0, 0, 64, 48), "a.mov"));
    }
    static std::string ident(XMLIdentified const& object)
    {
        return std::to_string(object.xmlIdent());
    }
};

// ---- Whole medias ----

TEST_F(MediaXmlTest, ASound)
{
    EXPECT_EQ("<AMFile id=\"#\" start=\"0\" duration=\"100\" scalar=\"1\" mediaStart=\"500\" "
              "mediaDuration=\"100\" trackNumber=\"0\" src=\"\" channelNumber=\"0\" "
              "channelNumber=\"1\" >\n" +
                  parameters(k_soundParameters) + attributes(attribute("ident", "")) + k_noEdges +
                  "</AMFile>\n",
              xmlOf(*sound()));
}

TEST_F(MediaXmlTest, AVideo)
{
    EXPECT_EQ("<VMFile id=\"#\" start=\"0\" duration=\"100\" scalar=\"1\" mediaStart=\"500\" "
              "mediaDuration=\"100\" trackNumber=\"0\" src=\"\" >\n" +
                  k_transformer + parameters(k_visualParameters) +
                  attributes(attribute("ident", "") + attribute("screenMetaData", "0")) +
                  k_noEdges + "</VMFile>\n",
              xmlOf(*video()));
}

TEST_F(MediaXmlTest, AStill)
{
    IMFile const still(30, 100, project->weak(), Rect<float>(0, 0, 64, 48), "a.png");
    EXPECT_EQ("<IMFile id=\"#\" start=\"0\" duration=\"100\" scalar=\"1\" mediaStart=\"30\" "
              "mediaDuration=\"100\" trackNumber=\"0\" src=\"\" trimStartSum=\"0\" >\n" +
                  k_transformer + parameters(k_visualParameters) +
                  attributes(attribute("ident", "")) + k_noEdges + "</IMFile>\n",
              xmlOf(still));
}

TEST_F(MediaXmlTest, AnImageTransition)
{
    ImageTransition const transition(30, 100, project->weak());
    EXPECT_EQ("<ImageTransition id=\"#\" start=\"0\" duration=\"100\" scalar=\"1\" "
              "mediaStart=\"30\" mediaDuration=\"100\" >\n" +
                  k_transformer + parameters(k_visualParameters) +
                  attributes(attribute("ident", "")) + k_noEdges + "</ImageTransition>\n",
              xmlOf(transition));
}

TEST_F(MediaXmlTest, AnAudioTransition)
{
    AudioTransition const transition(Range<long long>(30, 100), project->weak());
    EXPECT_EQ("<AudioTransition id=\"#\" start=\"0\" duration=\"100\" scalar=\"1\" "
              "mediaStart=\"30\" mediaDuration=\"100\" >\n" +
                  parameters(k_soundParameters) + attributes(attribute("ident", "")) + k_noEdges +
                  "</AudioTransition>\n",
              xmlOf(transition));
}

TEST_F(MediaXmlTest, ATextBox)
{
    TextBox const box("a < b", 30, 100, 0, 1000, project->weak(), 64.5f, 48.25f);
    EXPECT_EQ("<TextBox id=\"#\" start=\"0\" duration=\"100\" width=\"64.5\" height=\"48.25\" "
              "trimStartSum=\"0\" >\n" +
                  k_transformer + parameters(k_visualParameters + text("a &lt; b")) +
                  attributes(attribute("ident", "") + attribute("width", "64.5") +
                             attribute("height", "48.25")) +
                  k_noEdges + "</TextBox>\n",
              xmlOf(box));
}

TEST_F(MediaXmlTest, ACallout)
{
    Callout callout(30, 100, project->weak(), Rect<float>(0, 0, 64, 48), "a.png");
    callout.hotSpotAttr()->setValue(Point(1, 2.5, 3));
    callout.textRectAttr()->setValue(Rect<float>(4, 5, 6, 7.5f));
    EXPECT_EQ("<Callout id=\"#\" start=\"0\" duration=\"100\" scalar=\"1\" mediaStart=\"30\" "
              "mediaDuration=\"100\" trackNumber=\"0\" src=\"\" trimStartSum=\"0\" "
              "textRect=\"(4,5,6,7.5)\" hotspot=\"(1,2.5,3)\" >\n" +
                  k_transformer + parameters(k_visualParameters + text("")) +
                  attributes(attribute("ident", "") + attribute("hotSpot", "(1,2.5,3)") +
                             attribute("textRect", "(4,5,6,7.5)")) +
                  k_noEdges + "</Callout>\n",
              xmlOf(callout));
}

// ---- Attributes ----

TEST_F(MediaXmlTest, NumbersHaveSixDigits)
{
    // 67 / 200 = 0.335; 66 / 0.335 = 197.0149 media units are left.
    boost::shared_ptr<AMFile> const made(
        new AMFile(Range<long long>(0, 200), 48000, 24, project->weak(), "a.wav"));
    made->stretch(0.335);
    made->setTrackStart(12);
    made->trimEnd(1);
    EXPECT_EQ("<AMFile id=\"#\" start=\"12\" duration=\"66\" scalar=\"0.335\" mediaStart=\"0\" "
              "mediaDuration=\"197.015\" trackNumber=\"0\" src=\"\" channelNumber=\"0\" >",
              head(*made));
}

TEST_F(MediaXmlTest, ASourceIsNamedByItsIdent)
{
    boost::shared_ptr<Source> const from = movie();
    VMFile const made(Range<long long>(500, 100), project->weak(), from, 1);
    EXPECT_EQ("<VMFile id=\"#\" start=\"0\" duration=\"100\" scalar=\"1\" mediaStart=\"500\" "
              "mediaDuration=\"100\" trackNumber=\"1\" src=\"" +
                  ident(*from) + "\" >",
              head(made));
}

TEST_F(MediaXmlTest, AStillTellsTheSumOfItsTrims)
{
    IMFile still(30, 100, project->weak(), Rect<float>(0, 0, 64, 48), "a.png");
    still.trimStart(-7);
    EXPECT_EQ("<IMFile id=\"#\" start=\"-7\" duration=\"107\" scalar=\"1\" mediaStart=\"30\" "
              "mediaDuration=\"100\" trackNumber=\"0\" src=\"\" trimStartSum=\"-7\" >",
              head(still));
}

TEST_F(MediaXmlTest, ANameIsEscaped)
{
    boost::shared_ptr<AMFile> const made = sound();
    made->identAttribute()->setValue("\"A\" & B");
    EXPECT_EQ(attributes(attribute("ident", "&quot;A&quot; &amp; B")),
              part(*made, " <Attributes>\n", "</Attributes>\n"));
}

TEST_F(MediaXmlTest, ScreenMetaDataStandsLast)
{
    boost::shared_ptr<VMFile> const made = video();
    boost::shared_ptr<ScreenMetaData const> const metaData(
        ScreenMetaData::create(project->weak(), boost::weak_ptr<ProjectEditRate const>(project)));
    made->screenMetaData()->setValue(metaData);
    std::string const own = part(*made, " </RightEdgeMods>\n <ScreenMetaData ", "</VMFile>\n");
    EXPECT_EQ(0u, own.find(" </RightEdgeMods>\n <ScreenMetaData id=\"#\" "));
    EXPECT_NE(std::string::npos, own.find("\n </ScreenMetaData>\n</VMFile>\n"));
}

// ---- Effects, links and edges ----

TEST_F(MediaXmlTest, EffectsStandBetweenParametersAndAttributes)
{
    boost::shared_ptr<AMFile> const made = sound();
    made->addEffect(boost::shared_ptr<Effect>(new CompositeEffect("echo", project->weak())));
    EXPECT_EQ("</Parameters>\n"
              " <Effects>\n"
              "  <CompositeEffect id=\"#\" name=\"echo\" >\n"
              "  </CompositeEffect>\n"
              " </Effects>\n"
              " <Attributes>\n",
              part(*made, "</Parameters>\n <Effects>", " <Attributes>\n"));
}

TEST_F(MediaXmlTest, LinksStandBetweenAttributesAndEdges)
{
    boost::shared_ptr<AMFile> const made = sound();
    boost::shared_ptr<VMFile> const first = video();
    boost::shared_ptr<VMFile> const second = video();
    made->addLink(first);
    made->addLink(second);
    EXPECT_EQ(" </Attributes>\n"
              " <LinkedMedia>\n"
              "  <MediaLink link=\"" +
                  ident(*first) +
                  "\"/>\n"
                  "  <MediaLink link=\"" +
                  ident(*second) +
                  "\"/>\n"
                  " </LinkedMedia>\n" +
                  k_noEdges,
              part(*made, " </Attributes>\n", " </RightEdgeMods>\n"));
}

TEST_F(MediaXmlTest, EdgesAreWrittenLeftThenRight)
{
    boost::shared_ptr<AMFile> const made = sound();
    made->setLeftEdgeModificationLength(80);
    made->setRightEdgeModificationLength(40);
    made->addLeftEdgeModification(EdgeModification(made->volume(), FadeInFunc()));
    made->addRightEdgeModification(EdgeModification(made->gain(), FadeOutFunc()));
    // The left edge has what the right one leaves of 100.
    EXPECT_EQ(" <LeftEdgeMods length=\"60\">\n"
              "  <EdgeMod parameter=\"" +
                  ident(*made->volume()) +
                  "\">"
                  "   <FadeInFunc id=\"#\"  >\n"
                  "   </FadeInFunc>\n"
                  "  </EdgeMod>\n"
                  " </LeftEdgeMods>\n"
                  " <RightEdgeMods length=\"40\">\n"
                  "  <EdgeMod parameter=\"" +
                  ident(*made->gain()) +
                  "\">"
                  "   <FadeOutFunc id=\"#\"  >\n"
                  "   </FadeOutFunc>\n"
                  "  </EdgeMod>\n"
                  " </RightEdgeMods>\n",
              part(*made, " <LeftEdgeMods", " </RightEdgeMods>\n"));
}

// ---- what a host's own kind is called unless it says otherwise ----

TEST_F(MediaXmlTest, AKindIsNamedAfterTheOneItExtends)
{
    std::ostringstream out;
    XMLable::Options options{&out, ""};
    boost::shared_ptr<VMFile> const picture = video();
    boost::shared_ptr<IMFile> const still = OneOfEachKind(project->weak()).still;
    picture->MediaImpl::xmlName(options);
    out << ' ';
    picture->VisualMedia::xmlName(options);
    out << ' ';
    still->ImageMedia::xmlName(options);
    out << ' ';
    still->AbstractIMFile::xmlName(options);
    out << ' ';
    sound()->AudioMedia::xmlName(options);
    EXPECT_EQ("MediaImpl VisualMedia ImageMedia AbstractIMFile AudioMedia", out.str());
}

TEST_F(MediaXmlTest, AKindIsDescribedByTheOneItExtends)
{
    boost::shared_ptr<VMFile> const picture = video();
    boost::shared_ptr<IMFile> const still = OneOfEachKind(project->weak()).still;
    EXPECT_EQ("VisualMedia", picture->VisualMedia::description());
    EXPECT_EQ("ImageMedia", still->ImageMedia::description());
    EXPECT_EQ("AbstractIMFile", still->AbstractIMFile::description());
    EXPECT_EQ("", VisualFileMedia(SourceTrack("a.mov")).description());
    EXPECT_EQ("", picture->mediaEditor().description());
}

}  // namespace
}  // namespace test
}  // namespace tarn
