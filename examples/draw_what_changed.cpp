// Observing changes: each row of a timeline view listens to its track and the medias on it, and
// is drawn again only when one of them has changed.

#include <TarnMediaLib/TarnMediaLib.h>

#include <iostream>
#include <vector>

namespace {

using boost::shared_ptr;

//! [row]
class Row : public tarn::Observer
{
public:
    Row(std::string const& name, shared_ptr<tarn::Track const> const& track)
        : m_name(name), m_track(track), m_isDirty(true)
    {
        m_track->attach(this);
    }
    ~Row() override
    {
        m_track->detach(this);
        unwatchMedias();
    }

    /// Runs inside the edit, under the project's lock: it only takes a note.
    void observerUpdate() override { m_isDirty = true; }

    /// Runs when the edit is over.
    void drawIfDirty()
    {
        if (!m_isDirty)
            return;
        m_isDirty = false;
        // A track tells of medias that come and go, a media of its own changes.
        unwatchMedias();
        std::cout << "  draws " << m_name << ":";
        for (auto entry = m_track->mediaBegin(); entry != m_track->mediaEnd(); ++entry) {
            m_medias.push_back(entry->second);
            entry->second->attach(this);
            std::cout << " [" << entry->second->startTime() << ", " << entry->second->endTime()
                      << ")";
        }
        std::cout << "\n";
    }

private:
    void unwatchMedias()
    {
        for (shared_ptr<tarn::Media const> const& media : m_medias)
            media->detach(this);
        m_medias.clear();
    }

    std::string m_name;
    shared_ptr<tarn::Track const> m_track;
    std::vector<shared_ptr<tarn::Media const>> m_medias;
    bool m_isDirty;
};
//! [row]

}  // namespace

int main()
{
    shared_ptr<tarn::Project> const project = tarn::Project::create(30, 1);
    project->execute(tarn::NewVisualMixerCmd::create(1280, 720));
    project->execute(tarn::NewVisualTrackCmd::create(-1));
    project->execute(tarn::NewVisualTrackCmd::create(-1));
    shared_ptr<tarn::Track const> const v1 = project->timeline()->visualMixer()->trackAtIndex(0);
    shared_ptr<tarn::Track const> const v2 = project->timeline()->visualMixer()->trackAtIndex(1);
    shared_ptr<tarn::TextBox> const box(new tarn::TextBox("a", 0, 30, 0, 30, project, 320, 60));

    Row row1("V1", v1);
    Row row2("V2", v2);
    auto const show = [&](std::string const& what) {
        std::cout << what << "\n";
        row1.drawIfDirty();
        row2.drawIfDirty();
    };
    show("at first");
    project->execute(tarn::AddMediaCmd::create(v1, box, 0));
    show("a title on V1");
    project->execute(tarn::AddMediaCmd::create(v2, tarn::sharedClone(box), 60));
    show("its copy on V2");
    project->execute(tarn::MoveCmd::create(v1, box, 10));
    project->execute(tarn::MoveCmd::create(v1, box, 10));
    show("the first moved twice");
    project->execute(tarn::SplitCmd::create(v2, 70));
    show("the second split");
    project->undo();
    show("one step back");
    show("nothing done");
}
