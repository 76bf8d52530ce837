#include "commands/CloneAddMediasCmd.h"

#include "commands/AddMediaCmd.h"
#include "commands/CloneCmd.h"
#include "commands/RequireObjects.h"
#include "datatypes/SaturatedArithmetic.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <algorithm>
#include <limits>
#include <ostream>

namespace tarn {

namespace {

/// The media with the smallest start; the first met of several, empty without mappings.
boost::shared_ptr<Media const> findFirstInMappings(
    std::map<boost::shared_ptr<Track const>, ConstMediaSet> const& mappings)
{
    boost::shared_ptr<Media const> first;
    long long smallest = std::numeric_limits<long long>::max();
    for (auto const& mapping : mappings) {
        for (boost::shared_ptr<Media const> const& media : mapping.second) {
            long long const start = media->trackRange().start;
            if (!first || start < smallest) {
                first = media;
                smallest = start;
            }
        }
    }
    return first;
}

}  // namespace

CloneAddMediasCmd::CloneAddMediasCmd(long long time) : m_time(time) {}

boost::shared_ptr<CloneAddMediasCmd> CloneAddMediasCmd::create(long long time)
{
    return boost::shared_ptr<CloneAddMediasCmd>(new CloneAddMediasCmd(time));
}

CloneAddMediasCmd* CloneAddMediasCmd::clone() const
{
    return new CloneAddMediasCmd(*this);
}

void CloneAddMediasCmd::addMapping(boost::shared_ptr<Track const> const& track,
                                   boost::shared_ptr<Media const> const& media)
{
    m_mappings[track].insert(media);
}

void CloneAddMediasCmd::executeCommands(CommandHandler const*)
{
    requireMappings();
    m_cloneMap.clear();
    boost::shared_ptr<Media const> const first = findFirstInMappings(m_mappings);
    for (auto const& mapping : m_mappings) {
        for (boost::shared_ptr<Media const> const& media : mapping.second) {
            boost::shared_ptr<Media> const clone = cloneMedia(media);
            long long const distance =
                saturatedDifference(media->trackRange().start, first->trackRange().start);
            MultiCommand::execute(
                AddMediaCmd::create(mapping.first, clone, saturatedSum(distance, m_time)));
        }
    }
}

void CloneAddMediasCmd::requireMappings() const
{
    for (auto const& mapping : m_mappings) {
        requireObjects(mapping.first);
        requireEachObject(mapping.second);
    }
}

boost::shared_ptr<Media> CloneAddMediasCmd::cloneMedia(boost::shared_ptr<Media const> const& media)
{
    boost::shared_ptr<CloneCmd<Media>> const cloning = CloneCmd<Media>::create(media);
    MultiCommand::execute(cloning);
    m_cloneMap.insert(MediaCloneMap::value_type(media, cloning->result()));
    return cloning->result();
}

MediaList CloneAddMediasCmd::clones() const
{
    MediaList clones;
    for (auto const& entry : m_cloneMap)
        clones.push_back(entry.second);
    return clones;
}

long long CloneAddMediasCmd::additionLength() const
{
    long long length = 0;
    for (auto const& mapping : m_mappings) {
        for (boost::shared_ptr<Media const> const& media : mapping.second)
            length = std::max(length, saturatedDifference(media->trackRange().end(), m_time));
    }
    return length;
}

boost::shared_ptr<Track const> CloneAddMediasCmd::mappedTrack(
    boost::shared_ptr<Media const> const& media) const
{
    for (auto const& mapping : m_mappings) {
        if (mapping.second.count(media) != 0)
            return mapping.first;
    }
    return boost::shared_ptr<Track const>();
}

void CloneAddMediasCmd::mappedTracks(std::set<boost::shared_ptr<Track const>>* tracks) const
{
    for (auto const& mapping : m_mappings)
        tracks->insert(mapping.first);
}

void CloneAddMediasCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "CloneAddMediasCmd";
}

}  // namespace tarn
