#include "drawing/TimelinePicture.h"

#include "drawing/Svg.h"

#include <TarnMediaLib/edgemods/EdgeModFunc.h>
#include <TarnMediaLib/edgemods/EdgeModification.h>
#include <TarnMediaLib/effects/Effect.h>
#include <TarnMediaLib/parameters/KeyFrame.h>
#include <TarnMediaLib/parameters/LeftParameter.h>
#include <TarnMediaLib/parameters/MTVector.h>
#include <TarnMediaLib/parameters/ParameterInterface.h>
#include <TarnMediaLib/timeline/AbstractVisualTrack.h>
#include <TarnMediaLib/timeline/AudioMixer.h>
#include <TarnMediaLib/timeline/AudioTrack.h>
#include <TarnMediaLib/timeline/Media.h>
#include <TarnMediaLib/timeline/VisualMixer.h>

#include <algorithm>
#include <map>
#include <set>
#include <vector>

namespace tarn::drawing {

namespace {

double const k_left = 70;
double const k_top = 40;
double const k_rowHeight = 56;
double const k_boxHeight = 40;
double const k_width = 1100;

struct Row
{
    std::string name;
    boost::shared_ptr<Track const> track;
};

std::vector<Row> rowsOf(Timeline const& timeline)
{
    std::vector<Row> rows;
    // The last visual track is the front of the picture, and so stands on top.
    if (boost::shared_ptr<VisualMixer const> const mixer = timeline.visualMixer())
        for (unsigned i = static_cast<unsigned>(mixer->numTracks()); i-- > 0;)
            rows.push_back({"V" + std::to_string(i + 1), mixer->trackAtIndex(i)});
    if (boost::shared_ptr<AudioMixer const> const mixer = timeline.audioMixer())
        for (unsigned i = 0; i < static_cast<unsigned>(mixer->numTracks()); ++i)
            rows.push_back({"A" + std::to_string(i + 1), mixer->trackAtIndex(i)});
    return rows;
}

class Drawing
{
public:
    Drawing(Timeline const& timeline, std::vector<Row> const& rows, Label const& label)
        : m_rows(rows)
        , m_label(label)
        , m_start(std::min<long long>(0, timeline.startTime()))
        , m_scale((k_width - k_left - 30) /
                  std::max<double>(1, double(timeline.endTime() - m_start)))
        , m_svg(k_width, k_top + k_rowHeight * double(rows.size()) + 30, "#1e2127")
    {
        drawRuler(timeline.endTime());
        drawMarkers(*timeline.markerParam());
        for (std::size_t i = 0; i < rows.size(); ++i)
            drawRow(rows[i], k_top + k_rowHeight * double(i));
        drawLinks();
    }

    Svg const& svg() const { return m_svg; }

private:
    double x(long long time) const { return k_left + double(time - m_start) * m_scale; }

    void drawRuler(long long end)
    {
        long long const step = std::max<long long>(30, end / 30 / 12 * 30);
        for (long long time = 0; time <= end; time += step) {
            m_svg.line(x(time), k_top - 8, x(time), k_top + k_rowHeight * double(m_rows.size()),
                       "stroke:#343943");
            m_svg.text(x(time) + 3, k_top - 12, std::to_string(time),
                       "fill:#8b93a1;font-size:10px");
        }
    }

    void drawMarkers(LeftParameter<std::string> const& markers)
    {
        auto const times = markers.keyframeTimes();
        for (long long time : *times) {
            m_svg.polygon(point(x(time), k_top - 8) + point(x(time) - 5, k_top - 16) +
                              point(x(time) + 5, k_top - 16),
                          "fill:#ffd166");
            m_svg.text(x(time) + 8, k_top - 26, markers.keyframeAtTime(time)->value(),
                       "fill:#ffd166;font-size:10px");
        }
    }

    void drawRow(Row const& row, double top)
    {
        m_svg.text(16, top + 26, row.name, "fill:#c8cdd6;font-weight:bold");
        for (auto entry = row.track->mediaBegin(); entry != row.track->mediaEnd(); ++entry)
            drawMedia(*entry->second, row.name[0] == 'V', top);
    }

    void drawMedia(Media const& media, bool visual, double top)
    {
        Range<long long> const range = media.trackRange();
        double const width = double(range.duration) * m_scale;
        m_places[&media] = {x(range.start) + width / 2, top + k_boxHeight / 2};
        m_svg.rect(x(range.start), top, width, k_boxHeight,
                   std::string("stroke:#0d0f12;fill:") + (visual ? "#3b6ea8" : "#3f8f5f"), 4);
        drawEdges(media, top);
        drawKeyFrames(media, top);
        std::string words = m_label(media);
        for (int i = 0; i < media.numEffects(); ++i)
            words += " + " + media.effectAtIndex(i)->name();
        if (width > 40)
            m_svg.text(x(range.start) + 5, top + 14, words, "fill:white;font-size:10px");
    }

    void drawEdges(Media const& media, double top)
    {
        std::string const style = "fill:#ffffff;fill-opacity:0.25";
        double const left = x(media.startTime());
        double const right = x(media.endTime());
        double const bottom = top + k_boxHeight;
        if (!media.leftEdgeModifications().empty()) {
            double const width = double(media.leftEdgeModificationLength()) * m_scale;
            m_svg.polygon(point(left, bottom) + point(left, top) + point(left + width, top), style);
        }
        if (!media.rightEdgeModifications().empty()) {
            double const width = double(media.rightEdgeModificationLength()) * m_scale;
            m_svg.polygon(point(right, bottom) + point(right, top) + point(right - width, top),
                          style);
        }
    }

    void drawKeyFrames(Media const& media, double top)
    {
        std::set<long long> times;
        {
            auto const parameters = media.parameterVector();
            for (std::size_t i = 0; i < parameters->size(); ++i) {
                if (!(*parameters)[i] || (*parameters)[i]->numKeyFrames() < 2)
                    continue;
                auto const keyTimes = (*parameters)[i]->keyframeTimes();
                times.insert(keyTimes->begin(), keyTimes->end());
            }
        }
        for (long long time : times) {
            double const local = media.fromParameterTime(double(time));
            if (local < 0 || local > double(media.duration()))
                continue;
            double const centre = x(media.startTime()) + local * m_scale;
            double const middle = top + k_boxHeight - 8;
            m_svg.polygon(point(centre - 4, middle) + point(centre, middle - 4) +
                              point(centre + 4, middle) + point(centre, middle + 4),
                          "fill:#ffd166");
        }
    }

    void drawLinks()
    {
        for (Row const& row : m_rows)
            for (auto entry = row.track->mediaBegin(); entry != row.track->mediaEnd(); ++entry)
                drawLinksOf(*entry->second);
    }

    void drawLinksOf(Media const& media)
    {
        for (auto link = media.linkBegin(); link != media.linkEnd(); ++link) {
            auto const other = m_places.find(link->lock().get());
            auto const own = m_places.find(&media);
            if (other == m_places.end() || own->second.second > other->second.second)
                continue;
            m_svg.line(own->second.first, own->second.second, other->second.first,
                       other->second.second, "stroke:#ff9f6b;stroke-dasharray:4 3");
        }
    }

    static std::string point(double px, double py)
    {
        return std::to_string(px) + "," + std::to_string(py) + " ";
    }

    std::vector<Row> m_rows;
    Label m_label;
    long long m_start;  ///< what stands at the left: 0, or what lies before it
    double m_scale;
    Svg m_svg;
    std::map<Media const*, std::pair<double, double>> m_places;
};

}  // namespace

void drawTimeline(Timeline const& timeline, Label const& label, std::ostream& out)
{
    Drawing(timeline, rowsOf(timeline), label).svg().writeTo(out);
}

bool drawTimeline(Timeline const& timeline, Label const& label, std::string const& path)
{
    return Drawing(timeline, rowsOf(timeline), label).svg().writeTo(path);
}

bool drawTimeline(Timeline const& timeline, std::string const& path)
{
    return drawTimeline(
        timeline, [](Media const& media) { return media.description(); }, path);
}

}  // namespace tarn::drawing
