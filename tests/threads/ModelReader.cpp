#include "threads/ModelReader.h"

#include "fuzz/Fingerprint.h"
#include "fuzz/Invariants.h"
#include "fuzz/Stage.h"
#include "threads/Judge.h"
#include "threads/WriterCount.h"

#include "datatypes/Point.h"
#include "effects/Effect.h"
#include "exceptions/TarnMediaLibException.h"
#include "parameters/MTVector.h"
#include "parameters/Parameter.h"
#include "parameters/Parametric.h"
#include "project/ReadWriteMutex.h"
#include "timeline/AudioMixer.h"
#include "timeline/HitTester.h"
#include "timeline/Media.h"
#include "timeline/Timeline.h"
#include "timeline/Track.h"
#include "timeline/VisualMedia.h"
#include "timeline/VisualMixer.h"

#include <sstream>
#include <string>

namespace tarn {
namespace test {

namespace {

/// A list that is let go of under the lock: it may turn out to be the last owner of what an edit
/// has removed.
template <class List>
class Kept
{
public:
    Kept(Stage const& stage, boost::shared_ptr<List> const& list)
        : m_mutex(stage.project->mutex()), m_list(list)
    {}
    ~Kept()
    {
        ReadWriteMutex::ScopedReadLock const lock(m_mutex);
        m_list.reset();
    }
    Kept(Kept const&) = delete;
    Kept& operator=(Kept const&) = delete;

    List const& list() const { return *m_list; }

private:
    ReadWriteMutex& m_mutex;
    boost::shared_ptr<List> m_list;
};

}  // namespace

void ModelReader::readUntil(std::atomic<bool> const& isOver)
{
    while (!isOver) {
        try {
            readOnce();
        } catch (TarnMediaLibException const&) {
            // Between two locks the model may change, and some of what then is asked for is gone.
        } catch (std::exception const& thrown) {
            m_judge.addFault(std::string("a reader was thrown ") + thrown.what());
        }
    }
}

void ModelReader::readOnce()
{
    switch (m_turn++ % 6) {
    case 0:
        return evaluateParameters();
    case 1:
        return iterateMedias();
    case 2:
        return print();
    case 3:
        return hitTest();
    default:
        return checkModel();
    }
}

void ModelReader::evaluateParameters()
{
    // Queries that lock for themselves, on medias that an edit may remove meanwhile.
    Kept<ConstMediaList> const medias(m_stage, m_stage.project->timeline()->allMedias());
    for (boost::shared_ptr<Media const> const& media : medias.list()) {
        double const time = startOf(*media) + m_turn % 50;
        evaluate(*media, time);
        evaluateEffects(*media, time);
        if (auto const* visual = dynamic_cast<VisualMedia const*>(media.get())) {
            visual->transformAtTime(m_turn % 50);
            visual->geometryCropRectAtTime(m_turn % 50);
        }
    }
}

double ModelReader::startOf(Media const& media) const
{
    // The range is a reference into the media.
    ReadWriteMutex::ScopedReadLock const lock(m_stage.project->mutex());
    return media.mediaRange().start;
}

void ModelReader::evaluateEffects(Media const& media, double time)
{
    ReadWriteMutex::ScopedReadLock const lock(m_stage.project->mutex());
    for (int i = 0; i < media.numEffects(); ++i) {
        if (auto const effect = media.effectAtIndex(i)) {
            evaluate(*effect, time);
        }
    }
}

void ModelReader::evaluate(Parametric const& owner, double time)
{
    auto const parameters = owner.parameterVector();
    for (boost::shared_ptr<ParameterInterface const> const& parameter : *parameters) {
        if (!parameter || parameter->numKeyFrames() == 0) {
            continue;
        }
        if (auto const* number = dynamic_cast<Parameter<double> const*>(parameter.get())) {
            number->valueAtTime(time);
            number->interpolaterAtTime(time);
        } else if (auto const* small = dynamic_cast<Parameter<float> const*>(parameter.get())) {
            small->valueAtTime(time);
        }
        parameter->valuesDifferAtTimes(0, m_turn % 50);
        ++m_figures.values;
    }
}

void ModelReader::iterateMedias()
{
    ReadWriteMutex::ScopedReadLock const lock(m_stage.project->mutex());
    auto const iterate = [this](boost::shared_ptr<Mixer const> const& mixer) {
        if (!mixer) {
            return;
        }
        auto const end = mixer->trackEnd();
        for (auto track = mixer->trackBegin(); track != end; ++track) {
            Track const& lane = **track;
            lane.identAttribute();
            long long last = lane.startTime();
            auto const mediaEnd = lane.mediaEnd();
            for (auto media = lane.mediaBegin(); media != mediaEnd; ++media) {
                if (media->second->trackRange().start < last) {
                    m_judge.addFault("an iterator went back in time");
                }
                last = media->second->trackRange().start;
                // Made when someone first asks, which may be several readers at once.
                boost::shared_ptr<Media const>(media->second)->identAttribute();
                ++m_figures.medias;
            }
        }
    };
    iterate(m_stage.project->visualMixer());
    iterate(m_stage.project->audioMixer());
}

void ModelReader::print()
{
    std::ostringstream out;
    m_stage.project->toXML(out);
    std::string const xml = out.str();
    if (xml.compare(0, 9, "<Project ") != 0 ||
        xml.compare(xml.size() - 11, 11, "</Project>\n") != 0) {
        m_judge.addFault("a print is not whole");
    }
    ++m_figures.prints;
}

void ModelReader::hitTest()
{
    ReadWriteMutex::ScopedReadLock const lock(m_stage.project->mutex());
    boost::shared_ptr<VisualMixer const> const mixer = m_stage.project->visualMixer();
    if (!mixer) {
        return;
    }
    for (int i = 0; i < 8; ++i) {
        Point const location(40 * i - 160, 20 * i - 80, 0);
        HitTester::hitTestAtLocation(mixer, location,
                                     (m_turn + 17 * static_cast<unsigned>(i)) % 300);
        ++m_figures.hitTests;
    }
}

void ModelReader::checkModel()
{
    std::optional<std::size_t> const waiting = m_writers.waiting();
    ReadWriteMutex::ScopedReadLock const lock(m_stage.project->mutex());
    if (waiting) {
        m_writers.enteredAfter(*waiting);
    }
    noteInside();
    std::string broken;
    for (Broken const& one : brokenInvariants(m_stage)) {
        broken += one.text + '\n';
    }
    m_judge.addSeen(Fingerprint(m_stage).number(), broken);
    --m_figures.inside;
}

void ModelReader::noteInside()
{
    int const inside = ++m_figures.inside;
    int most = m_figures.mostInside;
    while (inside > most && !m_figures.mostInside.compare_exchange_weak(most, inside)) {
    }
}

}  // namespace test
}  // namespace tarn
