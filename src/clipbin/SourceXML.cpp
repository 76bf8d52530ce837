#include "clipbin/Source.h"

#include "clipbin/MediaFileStats.h"
#include "clipbin/PathUtil.h"
#include "datatypes/XmlRepresentation.h"
#include "datatypes/XmlText.h"
#include "project/ReadWriteMutex.h"

#include <boost/date_time/posix_time/conversion.hpp>
#include <boost/date_time/posix_time/posix_time_types.hpp>
#include <boost/date_time/posix_time/time_formatters.hpp>
#include <boost/filesystem/operations.hpp>

#include <ctime>
#include <ostream>

namespace tarn {

namespace {

// What the calendar of dates can print: the years 1400 to 9999.
std::time_t const k_earliestPrintable = -17987443200;
std::time_t const k_latestPrintable = 253402300799;

/// Of a file that is not there, or whose date cannot be told, "not-a-date-time".
boost::posix_time::ptime calcLastWriteTime(std::string const& path)
{
    boost::system::error_code error;
    if (!boost::filesystem::exists(path, error) || error)
        return boost::posix_time::ptime(boost::posix_time::not_a_date_time);
    std::time_t const written = boost::filesystem::last_write_time(path, error);
    if (error || written < k_earliestPrintable || written > k_latestPrintable)
        return boost::posix_time::ptime(boost::posix_time::not_a_date_time);
    return boost::posix_time::from_time_t(written);
}

// Kept so: it asks only whether the base occurs, wherever; so a relative path that contains it
// comes out empty. The side files of a recording follow another rule.
std::string convertToRelativeIfNecessary(XMLable::Options const& options, std::string const& path)
{
    if (options.basePath.empty() || path.find(options.basePath) == std::string::npos)
        return path;
    return PathUtil::absolutePathToRelative(path, options.basePath);
}

void writeRate(std::ostream& out, char const* key, boost::rational<unsigned long> const& rate)
{
    out << key << "=\"" << rate.numerator() << "/" << rate.denominator() << "\"";
}

void writeTrack(std::ostream& out, MediaFileStats::TrackStats const& track)
{
    out << "<SourceTrack range=\"" << track.range << "\" type=\"" << static_cast<int>(track.type)
        << "\" ";
    writeRate(out, "editRate", track.rangeEditRate);
    out << " trackRect=\"" << track.rect << "\" ";
    writeRate(out, "sampleRate", track.sampleRate);
    out << " bitDepth=\"" << track.bitDepth << "\" numChannels=\"" << track.numChannels << "\"/>\n";
}

}  // namespace

void Source::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "Source";
}

void Source::xmlAttributes(XMLable::Options& options) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    if (!m_stats)
        return;
    std::string const file = m_stats->filename();
    XmlText(options) << "src=\"" << xml_representation(convertToRelativeIfNecessary(options, file))
                     << "\" lastMod=\"" << boost::posix_time::to_iso_string(calcLastWriteTime(file))
                     << "\" rect=\"" << m_stats->rect() << "\"";
}

void Source::xmlBody(XMLable::Options& options, int indent) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    if (!m_stats)
        return;
    for (unsigned int track = 0; track < m_stats->numTracks(); ++track) {
        XmlText(options).indent(indent);
        writeTrack(*options.stream, m_stats->trackStats(track));
    }
}

}  // namespace tarn
