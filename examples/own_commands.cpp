// Two commands of a host's own: one that edits through the primitives, one made of other commands.

#include <TarnMediaLib/TarnMediaLib.h>

#include <iostream>

namespace {

using boost::shared_ptr;

//! [simple]
///     before   opacity 0: 1.0       the first key frame of a media
///     after    opacity 0: 0.4
///
/// Dims a media; undo gives back what it was.
/// @throws KeyFrameException on execution when the media's opacity has no key frame at its start
class DimCmd : public tarn::Command
{
public:
    static shared_ptr<DimCmd> create(shared_ptr<tarn::VisualMedia const> const& media,
                                     double opacity)
    {
        return shared_ptr<DimCmd>(new DimCmd(media, opacity));
    }

    DimCmd* clone() const override { return new DimCmd(*this); }

    bool execute(tarn::CommandHandler* handler) override
    {
        if (m_media->opacity()->keyframeAtTime(start())->value() == m_opacity)
            return false;  // nothing to do, and so no step to undo
        m_old = handler->changeParameterKeyFrame(m_media->opacity(), start(), m_opacity);
        return true;
    }
    bool unexecute(tarn::CommandHandler* handler) override
    {
        handler->changeParameterKeyFrame(m_media->opacity(), start(), m_old);
        return true;
    }

    void xmlName(tarn::XMLable::Options& options) const override { *options.stream << "DimCmd"; }

private:
    DimCmd(shared_ptr<tarn::VisualMedia const> const& media, double opacity)
        : m_media(media), m_opacity(opacity)
    {}

    long long start() const { return static_cast<long long>(m_media->toParameterTime(0)); }

    shared_ptr<tarn::VisualMedia const> m_media;
    double m_opacity;
    boost::any m_old;  // known once executed
};
//! [simple]

//! [composite]
///     before   V1: aaa...bb.c
///     after    V1: aaabb.c       the gap before b
///
/// Closes the gap before a media: it and what follows move to the end of what lies before it.
/// @throws what RippleMoveCmd throws; then nothing has moved
class CloseGapCmd : public tarn::MultiCommand
{
public:
    static shared_ptr<CloseGapCmd> create(shared_ptr<tarn::Track const> const& track,
                                          shared_ptr<tarn::Media const> const& media)
    {
        return shared_ptr<CloseGapCmd>(new CloseGapCmd(track, media));
    }

    CloseGapCmd* clone() const override { return new CloseGapCmd(*this); }

    void xmlName(tarn::XMLable::Options& options) const override
    {
        *options.stream << "CloseGapCmd";
    }

protected:
    // Only runs commands; undo, redo and taking back what ran before a failure come with the base.
    void executeCommands(tarn::CommandHandler const*) override
    {
        long long end = 0;
        for (auto entry = m_track->mediaBegin();
             entry != m_track->mediaEnd() && entry->second != m_media; ++entry)
            end = entry->second->endTime();
        long long const gap = m_media->startTime() - end;
        tarn::MultiCommand::execute(tarn::RippleMoveCmd::create(m_track, m_media, -gap));
    }

private:
    CloseGapCmd(shared_ptr<tarn::Track const> const& track,
                shared_ptr<tarn::Media const> const& media)
        : m_track(track), m_media(media)
    {}

    shared_ptr<tarn::Track const> m_track;
    shared_ptr<tarn::Media const> m_media;
};
//! [composite]

void print(std::string const& what, tarn::Track const& track)
{
    std::cout << what << ":";
    for (auto entry = track.mediaBegin(); entry != track.mediaEnd(); ++entry) {
        auto const media = boost::dynamic_pointer_cast<tarn::VisualMedia const>(entry->second);
        std::cout << " [" << media->startTime() << ", " << media->endTime() << ") opacity "
                  << media->opacity()->valueAtTime(0);
    }
    std::cout << "\n";
}

}  // namespace

int main()
{
    shared_ptr<tarn::Project> const project = tarn::Project::create(30, 1);
    project->execute(tarn::NewVisualMixerCmd::create(1280, 720));
    project->execute(tarn::NewVisualTrackCmd::create(-1));
    shared_ptr<tarn::Track const> const track = project->timeline()->visualMixer()->trackAtIndex(0);
    shared_ptr<tarn::TextBox> const a(new tarn::TextBox("a", 0, 30, 0, 30, project, 320, 60));
    project->execute(tarn::AddMediaCmd::create(track, a, 0));
    shared_ptr<tarn::TextBox> const b = tarn::sharedClone(a);
    project->execute(tarn::AddMediaCmd::create(track, b, 60));
    print("before", *track);

    project->execute(DimCmd::create(b, 0.5));
    print("dimmed", *track);
    std::cout << "again: " << (project->execute(DimCmd::create(b, 0.5)) ? "a step" : "no step")
              << "\n";
    project->execute(CloseGapCmd::create(track, b));
    print("closed", *track);
    project->undo();
    project->undo();
    print("two steps back", *track);
    project->redo();
    project->redo();
    print("and on again", *track);
}
