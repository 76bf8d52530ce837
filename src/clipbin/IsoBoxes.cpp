#include "clipbin/IsoBoxes.h"

#include "clipbin/Deadline.h"
#include "clipbin/RegularFile.h"

#include <algorithm>
#include <iterator>

namespace tarn {

namespace {

int const k_greatestDepth = 12;
std::uint32_t const k_greatestTrackId = 0x7FFFFFFF;
std::int64_t const k_mostChunkRuns = 1 << 24;
std::int64_t const k_visualEntrySize = 86;

constexpr std::uint32_t fourCC(char const (&text)[5])
{
    std::uint32_t value = 0;
    for (int i = 0; i < 4; ++i) {
        value = (value << 8) | static_cast<unsigned char>(text[i]);
    }
    return value;
}

bool isContainer(std::uint32_t type)
{
    static constexpr std::uint32_t k_types[] = {
        fourCC("moov"), fourCC("trak"), fourCC("mdia"), fourCC("minf"), fourCC("stbl"),
        fourCC("moof"), fourCC("traf"), fourCC("mvex"), fourCC("edts"), fourCC("dinf"),
        fourCC("udta"), fourCC("sinf"), fourCC("schi"), fourCC("tref"), fourCC("rmra"),
        fourCC("rmda"), fourCC("rmdr"), fourCC("meta")};
    return std::find(std::begin(k_types), std::end(k_types), type) != std::end(k_types);
}

std::uint32_t bigEndian(std::uint8_t const* bytes)
{
    return (std::uint32_t(bytes[0]) << 24) | (std::uint32_t(bytes[1]) << 16) |
           (std::uint32_t(bytes[2]) << 8) | bytes[3];
}

/// A fraction of a clean aperture; 0 if it makes no sense.
double aperturePart(std::uint32_t numerator, std::uint32_t denominator)
{
    auto const n = static_cast<std::int32_t>(numerator);
    auto const d = static_cast<std::int32_t>(denominator);
    return n > 0 && d > 0 ? static_cast<double>(n) / d : 0;
}

}  // namespace

IsoBoxes::IsoBoxes(RegularFile const& file, Deadline const& deadline)
    : m_file(file), m_deadline(deadline)
{
    walk(0, file.size(), 0);
}

bool IsoBoxes::isSane() const
{
    std::int64_t const fileSize = m_file.size();
    bool const haveSamples =
        std::all_of(m_tracks.begin(), m_tracks.end(),
                    [fileSize](Track const& track) { return track.samples.isSane(fileSize); });
    if (m_isForged || !haveSamples || m_deadline.hasPassed()) {
        return false;
    }
    if (!m_hasFragments) {
        return true;
    }
    // FFmpeg counts through every run of a track without a number from -10^9 on.
    bool const areNumbered = std::all_of(m_tracks.begin(), m_tracks.end(), [](Track const& track) {
        return track.id && *track.id <= k_greatestTrackId;
    });
    return areNumbered && !m_hasCompressedHeader;
}

std::optional<MovieSize> IsoBoxes::cleanAperture(int trackId) const
{
    auto const track = std::find_if(m_tracks.begin(), m_tracks.end(), [trackId](Track const& t) {
        return t.id && static_cast<std::int64_t>(*t.id) == trackId;
    });
    return track == m_tracks.end() ? std::nullopt : track->cleanAperture;
}

bool IsoBoxes::nextBox(std::int64_t position, std::int64_t end, Box& box) const
{
    std::uint8_t head[16] = {};
    std::int64_t const read = end - position < 8 ? 0 : m_file.readAt(position, head, sizeof head);
    if (read < 8) {
        return false;
    }
    std::uint64_t size = bigEndian(head);
    std::int64_t headSize = 8;
    if (size == 1 && read == 16) {
        headSize = 16;
        size = (std::uint64_t(bigEndian(head + 8)) << 32) | bigEndian(head + 12);
    } else if (size == 0) {
        size = static_cast<std::uint64_t>(end - position);
    }
    if (size < static_cast<std::uint64_t>(headSize)) {
        return false;
    }
    box.type = bigEndian(head + 4);
    box.begin = position + headSize;
    // A box that claims more than there is ends with what holds it.
    box.end = size > static_cast<std::uint64_t>(end - position)
                  ? end
                  : position + static_cast<std::int64_t>(size);
    return box.begin <= box.end;
}

void IsoBoxes::walk(std::int64_t begin, std::int64_t end, int depth)
{
    Box box;
    for (std::int64_t position = begin; nextBox(position, end, box); position = box.end) {
        if (m_isForged || m_deadline.hasPassed()) {
            return;
        }
        visit(box, depth);
    }
}

void IsoBoxes::visit(Box const& box, int depth)
{
    switch (box.type) {
    case fourCC("trak"):
        m_tracks.emplace_back();
        break;
    case fourCC("moof"):
        m_hasFragments = true;
        break;
    case fourCC("cmov"):
        m_hasCompressedHeader = true;
        break;
    case fourCC("stts"):
    case fourCC("ctts"):
        checkTable(box, 4, 8);
        break;
    case fourCC("stsc"):
        checkTable(box, 4, 12);
        break;
    case fourCC("stss"):
    case fourCC("stco"):
        checkTable(box, 4, 4);
        break;
    case fourCC("co64"):
        checkTable(box, 4, 8);
        break;
    case fourCC("stsz"):
        if (number(box, 4) == 0) {
            checkTable(box, 8, 4);
        }
        break;
    case fourCC("trun"):
        checkTrackRun(box);
        break;
    default:
        break;
    }
    if (!m_tracks.empty()) {
        readTrackBox(box, m_tracks.back());
    }
    if (isContainer(box.type) && depth < k_greatestDepth) {
        walk(childrenBegin(box), box.end, depth + 1);
    }
}

std::int64_t IsoBoxes::childrenBegin(Box const& box) const
{
    // MPEG-4 puts a version before the children of `meta`, QuickTime does not.
    bool const hasVersion =
        box.type == fourCC("meta") && box.size() >= 12 && number(box, 8) == fourCC("hdlr");
    return box.begin + (hasVersion ? 4 : 0);
}

void IsoBoxes::readTrackBox(Box const& box, Track& track)
{
    std::uint32_t const kind = number(box, 8);
    switch (box.type) {
    case fourCC("tkhd"):
        readTrackHeader(box, track);
        break;
    case fourCC("hdlr"):
        // The kinds that FFmpeg knows; others, as the data handler's, change nothing.
        if (kind == fourCC("soun")) {
            track.samples.noteHandler(true);
        } else if (kind == fourCC("vide") || kind == fourCC("subp") || kind == fourCC("clcp")) {
            track.samples.noteHandler(false);
        }
        break;
    case fourCC("stsd"):
        readSampleDescription(box, track);
        break;
    case fourCC("stts"):
        track.samples.noteTimes(number(box, 4) == 1 && number(box, 12) == 1);
        break;
    case fourCC("stsz"):
        track.samples.noteSamples(number(box, 8), number(box, 4));
        break;
    case fourCC("stz2"):
        track.samples.noteSamples(number(box, 8), 0);
        break;
    case fourCC("stco"):
    case fourCC("co64"):
        track.samples.noteChunks(number(box, 4));
        break;
    case fourCC("stsc"):
        readChunkRuns(box, track);
        break;
    default:
        break;
    }
}

void IsoBoxes::readTrackHeader(Box const& box, Track& track) const
{
    bool const hasLongTimes = (number(box, 0) >> 24) == 1;
    std::int64_t const idAt = hasLongTimes ? 20 : 12;
    if (box.size() >= idAt + 4) {
        track.id = number(box, idAt);
    }
}

void IsoBoxes::readChunkRuns(Box const& box, Track& track)
{
    std::int64_t const count = number(box, 4);
    if (m_isForged || count > k_mostChunkRuns) {
        m_isForged = true;
        return;
    }
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(count) * 12);
    if (m_file.readAt(box.begin + 8, bytes.data(), bytes.size()) !=
        static_cast<std::int64_t>(bytes.size())) {
        return;
    }
    std::vector<IsoSampleTable::ChunkRun> runs;
    for (std::size_t at = 0; at < bytes.size(); at += 12) {
        runs.push_back({bigEndian(&bytes[at]), bigEndian(&bytes[at + 4])});
    }
    track.samples.noteChunkRuns(runs);
}

void IsoBoxes::readSampleDescription(Box const& box, Track& track) const
{
    std::int64_t const entryBegin = box.begin + 8;
    Box entry;
    if (!nextBox(entryBegin, box.end, entry)) {
        return;
    }
    Box child;
    for (std::int64_t position = entryBegin + k_visualEntrySize;
         nextBox(position, entry.end, child); position = child.end) {
        if (child.type == fourCC("clap")) {
            readCleanAperture(child, track);
            return;
        }
    }
}

void IsoBoxes::readCleanAperture(Box const& box, Track& track) const
{
    if (box.size() < 32) {
        return;
    }
    MovieSize const size = {aperturePart(number(box, 0), number(box, 4)),
                            aperturePart(number(box, 8), number(box, 12))};
    if (size.width > 0 && size.height > 0) {
        track.cleanAperture = size;
    }
}

void IsoBoxes::checkTable(Box const& box, std::int64_t countAt, std::int64_t entrySize)
{
    std::int64_t const room = box.size() - countAt - 4;
    m_isForged = m_isForged || (room >= 0 && number(box, countAt) > room / entrySize);
}

void IsoBoxes::checkTrackRun(Box const& box)
{
    std::uint32_t const flags = number(box, 0);
    std::int64_t const optionalFields = ((flags & 0x1) ? 4 : 0) + ((flags & 0x4) ? 4 : 0);
    std::int64_t entrySize = 0;
    for (std::uint32_t const field : {0x100U, 0x200U, 0x400U, 0x800U}) {
        entrySize += (flags & field) ? 4 : 0;
    }
    std::int64_t const count = number(box, 4);
    if (entrySize > 0) {
        m_isForged = m_isForged || count > (box.size() - 8 - optionalFields) / entrySize;
        return;
    }
    m_samplesWithoutTable += count;
    m_isForged = m_isForged || m_samplesWithoutTable > m_file.size();
}

std::uint32_t IsoBoxes::number(Box const& box, std::int64_t offset) const
{
    std::uint8_t bytes[4] = {};
    if (box.size() < offset + 4 || m_file.readAt(box.begin + offset, bytes, sizeof bytes) != 4) {
        return 0;
    }
    return bigEndian(bytes);
}

}  // namespace tarn
