#pragma once

#include <cstdint>
#include <vector>

namespace tarn {

/// The claims of one track's sample table that no table bears out by its size: how many samples of
/// one size there are, and how many lie in each chunk. A few bytes of such claims can keep a reader
/// busy for seconds and fill gigabytes.
class IsoSampleTable
{
public:
    /// From chunk `firstChunk`, counted from 1, up to the next run each chunk has that many
    /// samples.
    struct ChunkRun
    {
        std::int64_t firstChunk = 0;
        std::int64_t samples = 0;
    };

    void noteHandler(bool isSound);
    /// All samples last one unit of time, as those of old sound formats do.
    void noteTimes(bool areUnits);
    /// @param size of every sample; 0 if each has its own, told by a table
    void noteSamples(std::int64_t count, std::int64_t size);
    void noteChunks(std::int64_t count);
    void noteChunkRuns(std::vector<ChunkRun> const& runs);

    /// Whether a file of that size can have these samples.
    bool isSane(std::int64_t fileSize) const;

private:
    bool isReadByChunks() const;
    bool areSamplesSane(std::int64_t fileSize) const;
    bool areChunksSane() const;

    bool m_isSound = false;
    bool m_isOther = false;
    bool m_hasUnits = false;
    bool m_hasOtherTimes = false;
    std::int64_t m_samples = 0;
    std::int64_t m_sampleSize = 0;
    std::int64_t m_chunks = 0;
    std::vector<ChunkRun> m_runs;
};

}  // namespace tarn
