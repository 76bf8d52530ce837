#include "project/AddMediaGuard.h"

#include "clipbin/SourceBin.h"
#include "exceptions/TarnMediaLibException.h"
#include "timeline/AMFile.h"
#include "timeline/AudioTransition.h"
#include "timeline/Callout.h"
#include "timeline/ConstMediaDispatcher.h"
#include "timeline/IMFile.h"
#include "timeline/ImageTransition.h"
#include "timeline/TextBox.h"
#include "timeline/VMFile.h"

namespace tarn {

namespace {

class GuardDispatcher : public ConstMediaDispatcher
{
public:
    explicit GuardDispatcher(boost::shared_ptr<SourceBin> const& sourceBin) : m_sourceBin(sourceBin)
    {}

    void dispatchMedia(boost::shared_ptr<VMFile const> const& media) override
    {
        performSourceCheck(*media);
    }
    void dispatchMedia(boost::shared_ptr<AMFile const> const& media) override
    {
        performSourceCheck(*media);
    }
    void dispatchMedia(boost::shared_ptr<IMFile const> const& media) override
    {
        performSourceCheck(*media);
    }
    void dispatchMedia(boost::shared_ptr<ImageTransition const> const&) override {}
    void dispatchMedia(boost::shared_ptr<AudioTransition const> const&) override {}
    void dispatchMedia(boost::shared_ptr<TextBox const> const&) override {}
    void dispatchMedia(boost::shared_ptr<Callout const> const&) override {}

private:
    template <class T>
    void performSourceCheck(T const& media) const
    {
        // A cloned project has no bin, and so no source of its own.
        if (!m_sourceBin || !m_sourceBin->containsSource(media.source())) {
            throw TarnMediaLibException(
                "attempting to add a media whose source doesn't belong to the project");
        }
    }

    boost::shared_ptr<SourceBin> const& m_sourceBin;
};

class RealGuard : public AddMediaGuard
{
public:
    void performGuard(boost::shared_ptr<SourceBin> const& sourceBin,
                      boost::shared_ptr<Media const> const& media) override
    {
        GuardDispatcher dispatcher(sourceBin);
        media->receiveDispatcher(&dispatcher);
    }
};

class FalseGuard : public AddMediaGuard
{
public:
    void performGuard(boost::shared_ptr<SourceBin> const&,
                      boost::shared_ptr<Media const> const&) override
    {}
};

bool& isTestRunner()
{
    static bool s_isTestRunner = false;
    return s_isTestRunner;
}

AddMediaGuard* createGuard()
{
    if (isTestRunner())
        return new FalseGuard;
    return new RealGuard;
}

}  // namespace

AddMediaGuard* AddMediaGuard::instance()
{
    // Never freed, so that a host's own statics may still use it while the process ends.
    static AddMediaGuard* const s_instance = createGuard();
    return s_instance;
}

void AddMediaGuard::setIsTestRunner(bool isRunner)
{
    isTestRunner() = isRunner;
}

}  // namespace tarn
