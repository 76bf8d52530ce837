#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

struct AVPacket;

namespace tarn {

class FFmpegContainer;

/// What the packets of a file tell where its head is silent: whether a picture track has more than
/// one sample, and where a track ends. Reads no more of the file than these questions need.
class FFmpegPackets
{
public:
    /// What is asked about a stream.
    struct Question
    {
        bool whetherMany = false;
        bool end = false;
    };

    /// @param questions one for each stream of the container, which must outlive this
    FFmpegPackets(FFmpegContainer const& container, std::vector<Question> const& questions);

    /// How many packets the stream has; 2 stands for two or more.
    long long count(unsigned int stream) const;
    /// Where the last packet of the stream ends, in units of its time base. Empty if that was not
    /// asked or there was no time to find out.
    std::optional<std::int64_t> end(unsigned int stream) const;

private:
    struct Answer
    {
        long long count = 0;
        std::int64_t delay = 0;  ///< from the decoding of the first packet to its showing
        std::optional<std::int64_t> decodeEnd = 0;  ///< unknown after a jump
        std::optional<std::int64_t> end;
    };

    bool isAsked(bool Question::*what) const;
    bool isTailEnough() const;
    void select(std::function<bool(Question const&)> const& isWanted);
    void readUntil(std::function<bool()> const& isDone);
    void note(AVPacket const& packet);
    static void noteTimes(Answer& answer, AVPacket const& packet, std::int64_t duration);
    std::int64_t frameDuration(unsigned int stream) const;
    void readAll();
    void readTail();
    void forgetEnds();
    bool isEveryCountKnown() const;
    bool isEveryEndKnown() const;

    FFmpegContainer const& m_container;
    std::vector<Question> m_questions;
    std::vector<Answer> m_answers;
};

}  // namespace tarn
