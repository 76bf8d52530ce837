#include "FramePicture.h"

#include <drawing/Svg.h>

#include <TarnMediaLib/datatypes/GraphicsUtil.h>
#include <TarnMediaLib/datatypes/Quad.h>
#include <TarnMediaLib/datatypes/Rect.h>
#include <TarnMediaLib/datatypes/TransformMatrix.h>
#include <TarnMediaLib/parameters/Attribute.h>
#include <TarnMediaLib/timeline/AbstractVisualTrack.h>
#include <TarnMediaLib/timeline/HitTester.h>
#include <TarnMediaLib/timeline/Pair.h>
#include <TarnMediaLib/timeline/VisualMedia.h>

namespace {

double const k_margin = 60;

/// From the picture plane, y upwards around its centre, to the drawing, y downwards.
struct Plane
{
    double width;
    double height;

    double x(tarn::Point const& point) const { return k_margin + width / 2 + point.x; }
    double y(tarn::Point const& point) const { return k_margin + height / 2 - point.y; }
};

class FrameDrawing
{
public:
    FrameDrawing(boost::shared_ptr<tarn::VisualMixer const> const& mixer, long long time)
        : m_mixer(mixer)
        , m_time(time)
        , m_plane{double(mixer->attributeWidth()->value()),
                  double(mixer->attributeHeight()->value())}
        , m_viewport(int(m_plane.width * -0.5), int(m_plane.height * -0.5), int(m_plane.width),
                     int(m_plane.height))
        , m_svg(m_plane.width + 2 * k_margin, m_plane.height + 2 * k_margin, "#1e2127")
    {
        m_svg.rect(k_margin, k_margin, m_plane.width, m_plane.height,
                   "fill:#0d0f12;stroke:#8b93a1");
    }

    void drawMedias(boost::shared_ptr<tarn::VisualMedia const> const& hit)
    {
        for (unsigned i = 0; i < static_cast<unsigned>(m_mixer->numTracks()); ++i) {
            boost::shared_ptr<tarn::AbstractVisualTrack const> const track =
                m_mixer->trackAtIndex(i);
            auto const media = boost::dynamic_pointer_cast<tarn::VisualMedia const>(
                static_cast<tarn::Track const&>(*track).mediaAtTime(m_time).second);
            if (media)
                drawMedia(track, media, media == hit);
        }
    }

    void drawClick(tarn::Point const& click, std::string const& words)
    {
        m_svg.circle(m_plane.x(click), m_plane.y(click), 6,
                     "fill:none;stroke:#ff5d5d;stroke-width:2");
        m_svg.circle(m_plane.x(click), m_plane.y(click), 1.5, "fill:#ff5d5d");
        m_svg.text(k_margin, m_plane.height + k_margin + 24, words, "fill:#c8cdd6");
    }

    bool writeTo(std::string const& path) const { return m_svg.writeTo(path); }

private:
    void drawMedia(boost::shared_ptr<tarn::AbstractVisualTrack const> const& track,
                   boost::shared_ptr<tarn::VisualMedia const> const& media, bool isHit)
    {
        long long const local = media->fromGlobalToParametricTime(m_time);
        tarn::Quad const quad(media->geometryCropRectAtTime(local));
        tarn::TransformMatrix const model =
            tarn::GraphicsUtil::calcModelMatrix(m_mixer, track, media, m_time);
        tarn::TransformMatrix camera = m_mixer->cameraTransformAtTime(m_time);
        camera.append(model);
        tarn::TransformMatrix const projection =
            m_mixer->projectionTransformAtTime(m_time, m_viewport);
        std::string corners;
        tarn::Point first;
        for (int corner = 0; corner < 4; ++corner) {
            tarn::Point const drawn =
                tarn::GraphicsUtil::project(quad.at(corner), camera, projection, m_viewport);
            if (corner == 1)
                first = drawn;
            corners +=
                std::to_string(m_plane.x(drawn)) + "," + std::to_string(m_plane.y(drawn)) + " ";
        }
        double const opacity =
            media->transformedDoubleParameterValueAtTime(media->opacity(), double(local));
        m_svg.polygon(corners, std::string("fill:#3b6ea8;fill-opacity:") +
                                   std::to_string(0.15 + 0.5 * opacity) +
                                   ";stroke:" + (isHit ? "#ff5d5d" : "#9fc3ee") +
                                   ";stroke-width:" + (isHit ? "3" : "1"));
        m_svg.text(m_plane.x(first) + 6, m_plane.y(first) + 16,
                   media->description() + (isHit ? " (hit)" : ""), "fill:white");
    }

    boost::shared_ptr<tarn::VisualMixer const> m_mixer;
    long long m_time;
    Plane m_plane;
    tarn::Rect<int> m_viewport;
    tarn::drawing::Svg m_svg;
};

}  // namespace

bool drawFrame(boost::shared_ptr<tarn::VisualMixer const> const& mixer, long long time,
               tarn::Point const& click, std::string const& path)
{
    boost::shared_ptr<tarn::VisualMedia const> const hit =
        tarn::HitTester::mediaAtLocation(mixer, click, time);
    FrameDrawing drawing(mixer, time);
    drawing.drawMedias(hit);
    drawing.drawClick(click, "time " + std::to_string(time) + ", click at (" +
                                 std::to_string(int(click.x)) + ", " +
                                 std::to_string(int(click.y)) +
                                 "): " + (hit ? "hits a " + hit->description() : "hits nothing"));
    return drawing.writeTo(path);
}
