#include "BinTable.h"

#include <TarnMediaLib/clipbin/MediaFileStats.h>
#include <TarnMediaLib/clipbin/Source.h>
#include <TarnMediaLib/clipbin/SourceBin.h>

#include <iomanip>
#include <iostream>
#include <sstream>

namespace {

char const* kindOf(tarn::MediaFileStats::TrackType type)
{
    switch (type) {
    case tarn::MediaFileStats::Video:
        return "video";
    case tarn::MediaFileStats::Image:
        return "still";
    case tarn::MediaFileStats::Audio:
        return "sound";
    }
    return "other";
}

std::string formatOf(tarn::MediaFileStats const& stats, unsigned track)
{
    std::ostringstream text;
    if (stats.trackType(track) == tarn::MediaFileStats::Audio) {
        text << stats.sampleRate(track).numerator() << " Hz, " << stats.numChannels(track)
             << " channels";
    } else {
        text << stats.trackRect(track).width << " x " << stats.trackRect(track).height;
    }
    return text.str();
}

std::string leafOf(std::string const& path)
{
    return path.substr(path.rfind('/') + 1);
}

void printSource(std::ostream& out, tarn::Source const& source)
{
    tarn::MediaFileStats const& stats = *source.mediaFileStats();
    for (unsigned track = 0; track < stats.numTracks(); ++track) {
        std::ostringstream length;
        length << stats.trackRange(track).duration << " at "
               << stats.rangeEditRate(track).numerator() << "/s";
        out << "  " << std::left << std::setw(24) << (track == 0 ? leafOf(stats.filename()) : "")
            << std::setw(8) << kindOf(stats.trackType(track)) << std::setw(22) << length.str()
            << formatOf(stats, track) << '\n';
    }
}

}  // namespace

void printBin(std::ostream& out, tarn::Project const& project)
{
    out << "  " << std::left << std::setw(24) << "file" << std::setw(8) << "track" << std::setw(22)
        << "length"
        << "format\n";
    boost::shared_ptr<tarn::SourceBin const> const bin = project.sourceBin();
    for (auto source = bin->begin(); source != bin->end(); ++source)
        printSource(out, **source);
}
