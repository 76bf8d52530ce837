#include "commands/IntraMediaCutCmd.h"

#include "commands/AddMediaCmd.h"
#include "commands/EdgeModCloneCmd.h"
#include "commands/GroupUtil.h"
#include "commands/LinkCmd.h"
#include "commands/RequireObjects.h"
#include "commands/TrimEndCmd.h"
#include "commands/XmlAttributes.h"
#include "exceptions/LinkException.h"
#include "exceptions/ValueException.h"
#include "timeline/Media.h"
#include "timeline/Pair.h"
#include "timeline/Track.h"

#include <ostream>

namespace tarn {

IntraMediaCutCmd::IntraMediaCutCmd(boost::shared_ptr<Track const> const& track,
                                   Range<long long> const& range)
    : m_track(track), m_range(range)
{}

boost::shared_ptr<IntraMediaCutCmd> IntraMediaCutCmd::create(
    boost::shared_ptr<Track const> const& track, Range<long long> const& range)
{
    return boost::shared_ptr<IntraMediaCutCmd>(new IntraMediaCutCmd(track, range));
}

IntraMediaCutCmd* IntraMediaCutCmd::clone() const
{
    return new IntraMediaCutCmd(*this);
}

void IntraMediaCutCmd::executeCommands(CommandHandler const*)
{
    checkValidIntraMediaCut();

    Range<long long> const mediaRange = m_media->trackRange();
    long long const trimEndOffset = mediaRange.end() - m_range.start;
    long long const trimStartOffset = m_range.end() - mediaRange.start;

    boost::shared_ptr<Media> const rightPiece = createTrimmedClone(m_media, trimStartOffset);
    std::vector<PlacedClone> clones(1, PlacedClone(m_track, rightPiece));
    ConstMediaVector linkedClones;
    addLinkedMediaTrimmedClones(trimStartOffset, &clones, &linkedClones);

    MultiCommand::execute(TrimEndCmd::create(m_track, m_media, trimEndOffset));
    addClonesToTimeline(clones, m_range.end());
    for (boost::shared_ptr<Media const> const& linkedClone : linkedClones)
        MultiCommand::execute(LinkCmd::create(rightPiece, linkedClone));
}

void IntraMediaCutCmd::checkValidIntraMediaCut()
{
    requireObjects(m_track);
    m_media = m_track->mediaAtTime(m_range.start).second;
    if (!m_media)
        throw ValueException<Range<long long>>("intramedia cut range doesn't start in a media",
                                               m_range);
    if (m_track->mediaAtTime(m_range.end()).second != m_media)
        throw ValueException<Range<long long>>("range for intramedia cut spans multiple medias",
                                               m_range);
    if (m_range.start == m_media->startTime() || m_range.end() == m_media->endTime())
        throw ValueException<Range<long long>>("trying to do an intramedia cut on clip boundries",
                                               m_range);
}

boost::shared_ptr<Media> IntraMediaCutCmd::createTrimmedClone(
    boost::shared_ptr<Media const> const& media, long long trimStartOffset)
{
    boost::shared_ptr<EdgeModCloneCmd> const cloning = EdgeModCloneCmd::create(media);
    MultiCommand::execute(cloning);

    boost::shared_ptr<Media> const clone = cloning->mediaClone();
    if (clone->parentTrack().lock())
        throw ValueException<boost::shared_ptr<Media>>(
            "trying to edit parented media like a parentless media", clone);
    clone->trimStart(trimStartOffset);
    return clone;
}

void IntraMediaCutCmd::addLinkedMediaTrimmedClones(long long trimStartOffset,
                                                   std::vector<PlacedClone>* clones,
                                                   ConstMediaVector* linkedClones)
{
    Range<long long> const mediaRange = m_media->trackRange();
    for (boost::shared_ptr<Media const> const& linked : GroupUtil::linkedMedias(m_media)) {
        Range<long long> const linkedRange = linked->trackRange();
        if (linkedRange != mediaRange)
            throw LinkException(mediaRange, linkedRange);

        boost::shared_ptr<Track const> const track = GroupUtil::parentTrack(linked);
        boost::shared_ptr<Media> const clone = createTrimmedClone(linked, trimStartOffset);
        clones->push_back(PlacedClone(track, clone));
        linkedClones->push_back(clone);
    }
}

void IntraMediaCutCmd::addClonesToTimeline(std::vector<PlacedClone> const& clones, long long time)
{
    for (PlacedClone const& placed : clones)
        MultiCommand::execute(AddMediaCmd::create(placed.first, placed.second, time));
}

void IntraMediaCutCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "IntraMediaCutCmd";
}

void IntraMediaCutCmd::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options)
        .ident("track", m_track)
        .ident("media", m_media)
        .value("start", m_range.start)
        .value("duration", m_range.duration);
}

}  // namespace tarn
