#include "script/Model.h"

#include "Terminal.h"

#include <TarnMediaLib/parameters/LeftParameter.h>
#include <TarnMediaLib/timeline/AMFile.h>
#include <TarnMediaLib/timeline/AbstractIMFile.h>
#include <TarnMediaLib/timeline/AudioMixer.h>
#include <TarnMediaLib/timeline/TextBox.h>
#include <TarnMediaLib/timeline/VMFile.h>
#include <TarnMediaLib/timeline/VisualMixer.h>

namespace tarn::tool {

namespace {

void addTracks(boost::shared_ptr<Mixer const> const& mixer, char kind,
               std::vector<NamedTrack>& tracks)
{
    if (!mixer)
        return;
    for (unsigned i = 0; i < mixer->numTracks(); ++i)
        tracks.push_back({kind + std::to_string(i + 1), mixer->trackAtIndex(i)});
}

}  // namespace

std::vector<NamedTrack> tracksOf(Timeline const& timeline)
{
    std::vector<NamedTrack> tracks;
    addTracks(timeline.visualMixer(), 'V', tracks);
    addTracks(timeline.audioMixer(), 'A', tracks);
    return tracks;
}

std::vector<boost::shared_ptr<Media const>> mediasOf(Track const& track)
{
    std::vector<boost::shared_ptr<Media const>> medias;
    for (auto entry = track.mediaBegin(); entry != track.mediaEnd(); ++entry)
        medias.push_back(entry->second);
    return medias;
}

std::vector<boost::shared_ptr<Media const>> linksOf(Media const& media)
{
    std::vector<boost::shared_ptr<Media const>> links;
    for (auto link = media.linkBegin(); link != media.linkEnd(); ++link)
        if (boost::shared_ptr<Media const> const other = link->lock())
            links.push_back(other);
    return links;
}

std::string trackName(Timeline const& timeline, Media const& media)
{
    boost::shared_ptr<Track const> const parent = media.parentTrack().lock();
    for (NamedTrack const& track : tracksOf(timeline))
        if (track.track == parent)
            return track.name;
    return "";
}

std::string fileLeaf(std::string const& path)
{
    return printable(path.substr(path.rfind('/') + 1));
}

std::string materialOf(Media const& media)
{
    if (auto const* video = dynamic_cast<VMFile const*>(&media))
        return fileLeaf(video->fileName());
    if (auto const* sound = dynamic_cast<AMFile const*>(&media))
        return fileLeaf(sound->fileName());
    if (auto const* still = dynamic_cast<AbstractIMFile const*>(&media))
        return fileLeaf(still->fileName());
    if (auto const* text = dynamic_cast<TextBox const*>(&media))
        return '"' + printable(text->text()->valueAtTime(0)) + '"';
    return media.description();
}

}  // namespace tarn::tool
