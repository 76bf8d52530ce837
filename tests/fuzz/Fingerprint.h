#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tarn {
namespace test {

class Stage;

/// What a word of a fingerprint tells of its object.
enum class Field : std::uint32_t
{
    VisualMixer,
    AudioMixer,
    Track,       ///< of a mixer, by place
    Entry,       ///< of a track: a key of its map
    EntryMedia,  ///< of a track: the media under that key
    Parent,
    TrackStart,
    TrackLength,
    MediaStart,
    MediaLength,
    Scalar,
    TrimStartSum,
    Link,
    DeadLinks,
    LeftLength,  ///< as stored, not as limited
    RightLength,
    LeftModification,
    RightModification,
    ModificationOrder,
    Effect,
    EffectClock,
    Parameters,  ///< addresses, key frames and interpolaters of all, as one number
    MetaData,
    Source,
    SourceOrder,
    Clipping  ///< what is in it, by place on the board
};
char const* name(Field field);

/// The whole model as numbers: objects by address, doubles by their bits, links as sets.
///
/// Two are equal when the same objects are in the same state. Reads what a getter would limit or
/// hide (stored edge lengths) as well. Medias of the pool and tracks that only links still lead to
/// count too, although they are not on the timeline.
class Fingerprint
{
public:
    struct Word
    {
        Field field;
        void const* owner;
        std::uint64_t value;

        bool operator==(Word const& other) const
        {
            return field == other.field && owner == other.owner && value == other.value;
        }
        bool operator<(Word const& other) const;
    };

    /// A word that only one of two fingerprints has, or has otherwise.
    struct Difference
    {
        Field field;
        void const* owner;
        bool isInBoth;  ///< with another value
        std::uint64_t before;
        std::uint64_t after;

        double beforeAsDouble() const;
        double afterAsDouble() const;
        std::string text() const;
    };

    Fingerprint() = default;
    explicit Fingerprint(Stage const& stage);

    bool operator==(Fingerprint const& other) const { return m_words == other.m_words; }
    bool operator!=(Fingerprint const& other) const { return !(*this == other); }
    /// The same for equal ones, and hardly ever for others.
    std::uint64_t number() const;
    std::vector<Difference> differences(Fingerprint const& after) const;
    /// The first such word's value.
    std::uint64_t valueOf(Field field, void const* owner, std::uint64_t absent) const;
    bool knows(void const* owner) const;
    /// Whether a media without length lies on a track.
    bool hasPlacedWithoutLength() const;
    bool hasAny(Field field, bool (*test)(std::uint64_t)) const;

private:
    std::vector<Word> m_words;
};

}  // namespace test
}  // namespace tarn
