#include "fuzz/Fingerprint.h"

#include "fuzz/Stage.h"

#include "clipbin/ClipBoard.h"
#include "clipbin/Clipping.h"
#include "clipbin/Source.h"
#include "clipbin/SourceBin.h"
#include "edgemods/AuxEdgeModInfo.h"
#include "edgemods/EdgeModFunc.h"
#include "edgemods/EdgeModification.h"
#include "effects/Effect.h"
#include "parameters/Attribute.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/KeyFrame.h"
#include "parameters/LeftParameter.h"
#include "parameters/MTVector.h"
#include "parameters/Parameter.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/ImageMedia.h"
#include "timeline/MediaImpl.h"
#include "timeline/Track.h"
#include "timeline/VMFile.h"
#include "timeline/VisualMixer.h"

#include <algorithm>
#include <cstring>
#include <set>
#include <sstream>
#include <tuple>

namespace tarn {
namespace test {
namespace {

// An explicit instantiation may name private members: the stored edge lengths have no other reader.
template <class Tag, long long MediaImpl::*Member>
struct PrivateMember
{
    friend long long storedLength(Tag, MediaImpl const& media) { return media.*Member; }
};
struct LeftEdge
{
};
struct RightEdge
{
};
long long storedLength(LeftEdge, MediaImpl const& media);
long long storedLength(RightEdge, MediaImpl const& media);
template struct PrivateMember<LeftEdge, &MediaImpl::m_leftEdgeLength>;
template struct PrivateMember<RightEdge, &MediaImpl::m_rightEdgeLength>;

std::uint64_t bits(double value)
{
    std::uint64_t result = 0;
    std::memcpy(&result, &value, sizeof(result));
    return result;
}

std::uint64_t bits(void const* pointer)
{
    return reinterpret_cast<std::uintptr_t>(pointer);
}

/// Addresses use the lower bytes only.
std::uint64_t atPlace(void const* pointer, int place)
{
    return bits(pointer) ^ (static_cast<std::uint64_t>(place) << 56);
}

std::uint64_t bits(long long value)
{
    return static_cast<std::uint64_t>(value);
}

double asDouble(std::uint64_t value)
{
    double result = 0;
    std::memcpy(&result, &value, sizeof(result));
    return result;
}

void mix(std::uint64_t& sum, std::uint64_t value)
{
    sum = (sum ^ value) * 0x9E3779B97F4A7C15ULL;
    sum ^= sum >> 29;
}

template <class T>
void mixFrames(std::uint64_t& sum, Parameter<T> const& parameter)
{
    auto const times = parameter.keyframeTimes();
    mix(sum, times->size());
    for (long long time : *times) {
        mix(sum, bits(time));
        mix(sum, valueBits(parameter.keyframeAtTime(time)->value()));
    }
}

/// Only what is blended has interpolaters.
template <class T>
void mixInterpolaters(std::uint64_t&, Parameter<T> const&)
{}
#define TARN_MIX(T)                                                                                \
    void mixInterpolaters(std::uint64_t& sum, Parameter<T> const& parameter)                       \
    {                                                                                              \
        if (auto const interpolaters = parameter.interpolaterParam())                              \
            mixFrames(sum, *interpolaters);                                                        \
    }
TARN_INTERPOLATING_TYPES(TARN_MIX)
#undef TARN_MIX

/// @return whether the parameter is of that type
template <class T>
bool mixIfOfType(std::uint64_t& sum, ParameterInterface const& parameter)
{
    auto const* const typed = dynamic_cast<Parameter<T> const*>(&parameter);
    if (typed) {
        mixFrames(sum, *typed);
        mixInterpolaters(sum, *typed);
    }
    return typed;
}

void mixParameter(std::uint64_t& sum, ParameterInterface const& parameter)
{
    mix(sum, bits(dynamic_cast<void const*>(&parameter)));
    if (mixIfOfType<double>(sum, parameter))
        return;
#define TARN_MIX(T) mixIfOfType<T>(sum, parameter) ||
    static_cast<void>(TARN_PARAMETER_TYPES(TARN_MIX) false);
#undef TARN_MIX
}

template <class Owner>
std::uint64_t parametersOf(Owner const& owner)
{
    std::uint64_t sum = 0;
    auto const parameters = owner.parameterVector();
    for (auto const& parameter : *parameters)
        if (parameter)
            mixParameter(sum, *parameter);
    return sum;
}

std::uint64_t modificationNumber(EdgeModification const& modification)
{
    std::uint64_t sum = bits(modification.parameter().get());
    for (char letter : modification.func().ident())
        mix(sum, static_cast<unsigned char>(letter));
    if (AuxEdgeModInfo const* const known = modification.func().auxInfo()) {
        mix(sum, bits(known->visualMixer().lock().get()));
        mix(sum, bits(known->visualMedia().lock().get()));
    }
    return sum;
}

/// A redo of a copy makes a new clipping, so what is in it counts and not which it is.
std::uint64_t contentOf(Clipping& clipping)
{
    std::uint64_t sum = 0;
    auto const medias = clipping.timeline()->allMedias();
    for (boost::shared_ptr<Media const> const& media : *medias) {
        mix(sum, bits(media->trackRange().start));
        mix(sum, bits(media->trackRange().duration));
        mix(sum, bits(media->mediaRange().start));
        mix(sum, bits(media->mediaRange().duration));
        mix(sum, bits(media->scalar()));
    }
    return sum;
}

/// Writes down a model, each object once.
class Writer
{
public:
    explicit Writer(std::vector<Fingerprint::Word>& words) : m_words(words) {}

    void writeTimeline(Stage const& stage)
    {
        writeMixer(Field::VisualMixer, stage.timeline()->visualMixer());
        writeMixer(Field::AudioMixer, stage.timeline()->audioMixer());
        for (int i = 0; i < Stage::k_poolSize; ++i)
            writeMedia(*stage.pool(i));
        for (boost::shared_ptr<ParameterInterface> const& parameter : stage.typedParameters().all())
            writeParameter(*parameter);
        writeParameter(*stage.timeline()->markerParam());
        while (!m_offTimeline.empty()) {
            boost::shared_ptr<Track const> const track = *m_offTimeline.begin();
            m_offTimeline.erase(m_offTimeline.begin());
            writeTrack(*track);
        }
    }

    void writeBins(Stage const& stage)
    {
        std::uint64_t order = 0;
        boost::shared_ptr<SourceBin> const bin = stage.project->sourceBin();
        std::multiset<Source const*> sources;
        for (auto const& source : *bin) {
            mix(order, bits(source.get()));
            sources.insert(source.get());
        }
        for (Source const* source : sources)
            write(Field::Source, source, 1);
        write(Field::SourceOrder, nullptr, order);
        long long place = 0;
        for (auto const& clipping : stage.project->clipBoard()->clippings())
            write(Field::Clipping, reinterpret_cast<void const*>(++place), contentOf(*clipping));
    }

private:
    void write(Field field, void const* owner, std::uint64_t value)
    {
        m_words.push_back({field, owner, value});
    }

    void writeParameter(ParameterInterface const& parameter)
    {
        std::uint64_t sum = 0;
        mixParameter(sum, parameter);
        write(Field::Parameters, dynamic_cast<void const*>(&parameter), sum);
    }

    void writeMixer(Field field, boost::shared_ptr<Mixer const> const& mixer)
    {
        write(field, nullptr, bits(mixer.get()));
        if (!mixer)
            return;
        writeEffects(*mixer, mixer.get());
        write(Field::Parameters, mixer.get(), parametersOf(*mixer));
        int place = 0;
        for (auto const& track : mixer->trackList()) {
            write(Field::Track, mixer.get(), atPlace(track.get(), place++));
            writeTrack(*track);
        }
    }

    void writeTrack(Track const& track)
    {
        if (!m_seen.insert(&track).second)
            return;
        m_offTimeline.erase(track.shared_from_this());
        writeEffects(track, &track);
        write(Field::Parameters, &track, parametersOf(track));
        for (auto const& entry : track.medias()) {
            write(Field::Entry, &track, bits(entry.first));
            write(Field::EntryMedia, &track, bits(entry.second.get()));
            writeMedia(*entry.second);
        }
    }

    void writeMedia(Media const& media)
    {
        if (!m_seen.insert(&media).second)
            return;
        boost::shared_ptr<Track const> const parent = media.parentTrack().lock();
        write(Field::Parent, &media, bits(parent.get()));
        if (parent && m_seen.count(parent.get()) == 0)
            m_offTimeline.insert(parent);
        write(Field::TrackStart, &media, bits(media.trackRange().start));
        write(Field::TrackLength, &media, bits(media.trackRange().duration));
        write(Field::MediaStart, &media, bits(media.mediaRange().start));
        write(Field::MediaLength, &media, bits(media.mediaRange().duration));
        write(Field::Scalar, &media, bits(media.scalar()));
        if (auto const* image = dynamic_cast<ImageMedia const*>(&media))
            write(Field::TrimStartSum, &media, bits(image->trimStartSum()));
        writeLinks(media);
        writeEdges(static_cast<MediaImpl const&>(media));
        writeEffects(media, &media);
        write(Field::Parameters, &media, parametersOf(media));
        if (auto const* video = dynamic_cast<VMFile const*>(&media))
            write(Field::MetaData, &media, bits(video->screenMetaData()->value().get()));
    }

    void writeLinks(Media const& media)
    {
        Media& links = const_cast<Media&>(media);  // the plain iterators, which lock nothing
        std::set<Media const*> alive;
        std::uint64_t dead = 0;
        for (auto link = links.linkBegin(); link != links.linkEnd(); ++link) {
            boost::shared_ptr<Media const> const linked = link->lock();
            if (!linked) {
                ++dead;
                continue;
            }
            alive.insert(linked.get());
            boost::shared_ptr<Track const> const parent = linked->parentTrack().lock();
            if (parent && m_seen.count(parent.get()) == 0)
                m_offTimeline.insert(parent);
        }
        for (Media const* linked : alive)
            write(Field::Link, &media, bits(linked));
        if (dead > 0)
            write(Field::DeadLinks, &media, dead);
    }

    void writeEdges(MediaImpl const& media)
    {
        write(Field::LeftLength, &media, bits(storedLength(LeftEdge(), media)));
        write(Field::RightLength, &media, bits(storedLength(RightEdge(), media)));
        std::uint64_t order = 0;
        writeModifications(Field::LeftModification, media, media.leftEdgeModifications(), order);
        writeModifications(Field::RightModification, media, media.rightEdgeModifications(), order);
        write(Field::ModificationOrder, &media, order);
    }

    void writeModifications(Field field, Media const& media,
                            std::list<EdgeModification> const& modifications, std::uint64_t& order)
    {
        std::set<std::uint64_t> numbers;
        for (EdgeModification const& modification : modifications) {
            std::uint64_t const number = modificationNumber(modification);
            mix(order, number);
            numbers.insert(number);
        }
        for (std::uint64_t number : numbers)
            write(field, &media, number);
    }

    void writeEffects(Effectable const& owner, void const* name)
    {
        for (int i = 0; i < owner.numEffects(); ++i) {
            boost::shared_ptr<Effect const> const effect = owner.effectAtIndex(i);
            write(Field::Effect, name, atPlace(effect.get(), i));
            if (!effect)
                continue;
            write(Field::EffectClock, effect.get(), bits(effect->effectTimeConverter()));
            write(Field::Parameters, effect.get(), parametersOf(*effect));
        }
    }

    std::vector<Fingerprint::Word>& m_words;
    std::set<void const*> m_seen;
    std::set<boost::shared_ptr<Track const>> m_offTimeline;
};

bool isDouble(Field field)
{
    return field == Field::MediaStart || field == Field::MediaLength || field == Field::Scalar;
}

}  // namespace

char const* name(Field field)
{
    static char const* const names[] = {"visual mixer",
                                        "audio mixer",
                                        "track",
                                        "entry at",
                                        "media of entry",
                                        "parent",
                                        "track start",
                                        "track length",
                                        "media start",
                                        "media length",
                                        "scalar",
                                        "trim sum",
                                        "link",
                                        "dead links",
                                        "stored left edge",
                                        "stored right edge",
                                        "left modification",
                                        "right modification",
                                        "modification order",
                                        "effect",
                                        "clock of effect",
                                        "parameters",
                                        "metadata",
                                        "source",
                                        "source order",
                                        "clipping"};
    return names[static_cast<std::uint32_t>(field)];
}

bool Fingerprint::Word::operator<(Word const& other) const
{
    return std::tie(owner, field, value) < std::tie(other.owner, other.field, other.value);
}

double Fingerprint::Difference::beforeAsDouble() const
{
    return asDouble(before);
}

double Fingerprint::Difference::afterAsDouble() const
{
    return asDouble(after);
}

std::string Fingerprint::Difference::text() const
{
    std::ostringstream out;
    out.precision(17);
    out << name(field) << " of " << owner << ": ";
    if (isDouble(field))
        out << beforeAsDouble() << " became " << afterAsDouble();
    else
        out << static_cast<long long>(before) << " became " << static_cast<long long>(after);
    if (!isInBoth)
        out << " (came or went)";
    return out.str();
}

Fingerprint::Fingerprint(Stage const& stage)
{
    m_words.reserve(512);
    Writer writer(m_words);
    writer.writeTimeline(stage);
    writer.writeBins(stage);
}

std::uint64_t Fingerprint::number() const
{
    std::uint64_t sum = 0;
    for (Word const& word : m_words) {
        mix(sum, static_cast<std::uint64_t>(word.field));
        mix(sum, bits(word.owner));
        mix(sum, word.value);
    }
    return sum;
}

std::uint64_t Fingerprint::valueOf(Field field, void const* owner, std::uint64_t absent) const
{
    for (Word const& word : m_words)
        if (word.field == field && word.owner == owner)
            return word.value;
    return absent;
}

bool Fingerprint::knows(void const* owner) const
{
    for (Word const& word : m_words)
        if (word.owner == owner)
            return true;
    return false;
}

bool Fingerprint::hasPlacedWithoutLength() const
{
    std::set<void const*> placed;
    for (Word const& word : m_words)
        if (word.field == Field::Parent && word.value != 0)
            placed.insert(word.owner);
    return std::any_of(m_words.begin(), m_words.end(), [&placed](Word const& word) {
        return word.field == Field::TrackLength && static_cast<long long>(word.value) <= 0 &&
               placed.count(word.owner) != 0;
    });
}

bool Fingerprint::hasAny(Field field, bool (*test)(std::uint64_t)) const
{
    for (Word const& word : m_words)
        if (word.field == field && test(word.value))
            return true;
    return false;
}

std::vector<Fingerprint::Difference> Fingerprint::differences(Fingerprint const& after) const
{
    std::vector<Word> mine = m_words;
    std::vector<Word> others = after.m_words;
    std::sort(mine.begin(), mine.end());
    std::sort(others.begin(), others.end());
    std::vector<Word> gone;
    std::vector<Word> come;
    std::set_difference(mine.begin(), mine.end(), others.begin(), others.end(),
                        std::back_inserter(gone));
    std::set_difference(others.begin(), others.end(), mine.begin(), mine.end(),
                        std::back_inserter(come));
    std::vector<Difference> result;
    for (Word const& word : gone) {
        auto const same = std::find_if(come.begin(), come.end(), [&word](Word const& other) {
            return other.field == word.field && other.owner == word.owner;
        });
        if (same == come.end()) {
            result.push_back({word.field, word.owner, false, word.value, 0});
        } else {
            result.push_back({word.field, word.owner, true, word.value, same->value});
            come.erase(same);
        }
    }
    for (Word const& word : come)
        result.push_back({word.field, word.owner, false, 0, word.value});
    return result;
}

}  // namespace test
}  // namespace tarn
