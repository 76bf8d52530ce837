#pragma once

#include "edgemods/EdgeModification.h"
#include "effects/EffectTimeConverter.h"
#include "timeline/Media.h"
#include "timeline/MediaTiming.h"

#include <memory>
#include <string>

namespace tarn {

/// What all medias share: the two ranges and the stretch between them, links, effects and edges.
///
/// The ranges change through the editor of the concrete media. Up to rounding, media duration times
/// scalar is the track duration. Every edit ends with notify().
class TARN_API MediaImpl : public Media, public EffectTimeConverter
{
public:
    /// The media begins at track time 0, lasts as long as `sourceRange`, and shows that range of
    /// its source. The limits (media units) are what the source offers.
    MediaImpl(Range<long long> const& sourceRange, double mediaStartLimit, double mediaEndLimit,
              boost::weak_ptr<ThreadSafe const> const& project);
    ~MediaImpl() override;

    std::string description() const override;
    /// Inside a collection hands itself to the collector, which asks for it once at the end.
    void notify() const override;

    void setParentTrack(boost::weak_ptr<Track> const& track) override;
    boost::weak_ptr<Track> parentTrack() override;
    boost::weak_ptr<Track const> parentTrack() const override;

    void link(boost::shared_ptr<Media> const& other) override;
    void addLink(boost::shared_ptr<Media> const& other) override;
    void removeLink(boost::shared_ptr<Media> const& other) override;
    bool isLinkedWith(boost::shared_ptr<Media const> const& other) const override;
    ConstIterator<LinkList> linkBegin() const override;
    LinkList::iterator linkBegin() override;
    ConstIterator<LinkList> linkEnd() const override;
    LinkList::iterator linkEnd() override;
    bool isLinkableWith(boost::shared_ptr<Media const> const& other) const override;

    Range<long long> trackRangeWithStretch(double scalar) const override;
    Range<double> const& mediaRange() const override;
    Range<long long> const& trackRange() const override;
    double scalar() const override;
    long long trimEndLimit() const override;
    long long trimStartLimit() const override;

    void move(long long offset) override;
    void trimStart(long long offset) override;
    bool validTrimStart(long long offset) override;
    void trimEnd(long long offset) override;
    bool validTrimEnd(long long offset) override;
    void setTrackStart(long long time) override;
    double stretch(double scalar) override;

    long long startTime() const override;
    long long endTime() const override;
    long long duration() const override;

    /// Media units: the lowest and the highest media time that may be shown.
    double mediaStartLimit() const;
    double mediaEndLimit() const;
    /// Everything that the editors reckon with, read under one lock.
    MediaTiming timing() const;
    /// The scalar nearest to `requested` that gives a whole track duration.
    double findScalar(double requested) const;

    /// Applies the edge modification of that parameter, if `time` (edit units since the media's
    /// start) lies in an edge. Asked again from within such a function, gives `value` back.
    double doubleParametricTransform(boost::shared_ptr<ParameterInterface const> const& parameter,
                                     double value, double time) const override;
    /// Unless one of its edges bends that parameter.
    bool showsAsStored(ParameterInterface const* parameter) const override;
    /// From edit units since the media's start to the source's clock, where the key frames lie.
    double toParameterTime(double time) const override;
    double fromParameterTime(double time) const override;
    long long fromGlobalToParametricTime(long long time) const override;
    int numParameters() const override;
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> parameterVector()
        const override;
    /// The clock of this media's effects.
    long long globalTimeToEffectTime(long long time) const override;

    /// An effect runs on the clock of the last media it was given to.
    int addEffect(boost::shared_ptr<Effect> const& effect) override;
    void insertEffect(boost::shared_ptr<Effect> const& effect, int index) override;
    void swapEffectOrder(int index1, int index2) override;
    RemovedEffect removeEffect(boost::shared_ptr<Effect const> const& effect) override;
    RemovedEffect removeEffect(int index) override;
    boost::shared_ptr<Effect> effectAtIndex(int index) override;
    boost::shared_ptr<Effect const> effectAtIndex(int index) const override;
    int numEffects() const override;

    /// Stores the length asked for; the getters tell what the media has room for.
    void setLeftEdgeModificationLength(long long length) override;
    void setRightEdgeModificationLength(long long length) override;
    long long leftEdgeModificationLength() const override;
    long long rightEdgeModificationLength() const override;
    std::list<EdgeModification> leftEdgeModifications() const override;
    std::list<EdgeModification> rightEdgeModifications() const override;
    void addLeftEdgeModification(EdgeModification const& modification) override;
    void addRightEdgeModification(EdgeModification const& modification) override;
    EdgeModification removeLeftEdgeModification(
        boost::shared_ptr<Parameter<double> const> const& parameter) override;
    EdgeModification removeRightEdgeModification(
        boost::shared_ptr<Parameter<double> const> const& parameter) override;

    void xmlOfParameters(XMLable::Options& options, int indent) const override;
    void xmlOfAttributes(XMLable::Options& options, int indent) const override;
    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    /// Copies everything but parent, links and the edge lists. Cloned effects run on the copy's
    /// clock. Whoever finishes the copy calls copyEdgeModifications().
    MediaImpl(MediaImpl const& other);

    /// Takes over the edges of `other` on this media's own parameters of the same names; leaves out
    /// those without one. Needs the complete object, and does not notify, as nothing owns it yet.
    void copyEdgeModifications(MediaImpl const& other);

    /// Whether there is one; an edge modification always has one.
    bool hasEdgeFunctions() const { return !m_leftEdgeMods.empty() || !m_rightEdgeMods.empty(); }
    /// Gives every edge function that knows a mixer and a media that mixer and `media` instead.
    void aimEdgeFunctionsAt(boost::shared_ptr<VisualMedia const> const& media);

    /// A complete copy of `original`, made under the read lock.
    template <class M>
    static M* cloneOf(M const& original);

private:
    struct EdgeRoom;

    VectorEffectable const& effects() const;
    VectorEffectable& effects();
    EdgeRoom edgeRoom() const;
    double transformWithEdgeMods(std::list<EdgeModification> const& modifications,
                                 boost::shared_ptr<ParameterInterface const> const& parameter,
                                 double value, double position) const;
    void printEdgeModsXML(XMLable::Options& options, int indent) const;
    void printLinksXML(XMLable::Options& options, int indent) const;
    void removeFromLinkedMediaList(boost::shared_ptr<Media> const& other);

    double m_mediaStartLimit;
    double m_mediaEndLimit;
    Range<double> m_mediaRange;
    double m_scalar;
    boost::shared_ptr<VectorEffectable> m_effects;  // made for the first effect
    long long m_leftEdgeLength;
    long long m_rightEdgeLength;
    std::list<EdgeModification> m_leftEdgeMods;
    std::list<EdgeModification> m_rightEdgeMods;
};

template <class M>
M* MediaImpl::cloneOf(M const& original)
{
    ReadWriteMutex::ScopedReadLock lock(original.mutex());
    std::unique_ptr<M> copy(new M(original));
    copy->copyEdgeModifications(original);
    return copy.release();
}

}  // namespace tarn
