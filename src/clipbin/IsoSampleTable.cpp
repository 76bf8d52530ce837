#include "clipbin/IsoSampleTable.h"

#include <algorithm>

namespace tarn {

namespace {

// So many cost no time worth speaking of. The data of a movie may lie in other files.
std::int64_t const k_harmlessSamples = 1000000;
std::int64_t const k_harmlessChunkSamples = 65536;
// Old sound formats count single samples, of which a byte of the file can hold dozens.
std::int64_t const k_mostSoundSamplesAByte = 64;

}  // namespace

void IsoSampleTable::noteHandler(bool isSound)
{
    (isSound ? m_isSound : m_isOther) = true;
}

void IsoSampleTable::noteTimes(bool areUnits)
{
    (areUnits ? m_hasUnits : m_hasOtherTimes) = true;
}

void IsoSampleTable::noteSamples(std::int64_t count, std::int64_t size)
{
    if (count >= m_samples) {
        m_samples = count;
        m_sampleSize = size;
    }
}

void IsoSampleTable::noteChunks(std::int64_t count)
{
    m_chunks = std::max(m_chunks, count);
}

void IsoSampleTable::noteChunkRuns(std::vector<ChunkRun> const& runs)
{
    m_runs = runs;
}

bool IsoSampleTable::isSane(std::int64_t fileSize) const
{
    return areSamplesSane(fileSize) && areChunksSane();
}

/// FFmpeg reads such sound chunk by chunk; of everything else it lists each sample.
bool IsoSampleTable::isReadByChunks() const
{
    return m_isSound && !m_isOther && m_hasUnits && !m_hasOtherTimes;
}

bool IsoSampleTable::areSamplesSane(std::int64_t fileSize) const
{
    if (m_sampleSize == 0 || m_samples <= k_harmlessSamples) {
        return true;
    }
    return isReadByChunks() ? m_samples / k_mostSoundSamplesAByte <= fileSize
                            : m_samples <= fileSize / m_sampleSize;
}

bool IsoSampleTable::areChunksSane() const
{
    std::int64_t const most = 2 * m_samples + k_harmlessChunkSamples;
    std::int64_t samples = 0;
    for (std::size_t i = 0; i < m_runs.size(); ++i) {
        std::int64_t const end =
            i + 1 < m_runs.size() ? std::min(m_runs[i + 1].firstChunk, m_chunks + 1) : m_chunks + 1;
        std::int64_t const chunks = std::max<std::int64_t>(end - m_runs[i].firstChunk, 0);
        // Both factors are below 2^32, and the sum stays below `most`.
        if (chunks > 0 && m_runs[i].samples > (most - samples) / chunks) {
            return false;
        }
        samples += chunks * m_runs[i].samples;
    }
    return true;
}

}  // namespace tarn
