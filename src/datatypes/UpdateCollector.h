#pragma once

#include "datatypes/DatatypesFwd.h"
#include "datatypes/Export.h"
#include "datatypes/TarnObject.h"

#include <boost/shared_ptr.hpp>

#include <memory>

namespace tarn {

/// Gathers the mixers, tracks and medias that change, so that each notifies once.
///
/// One for the process. Used by edits, so by one thread at a time.
class TARN_API UpdateCollector : public TarnObject
{
public:
    /// Collects for a scope. Does not nest: the inner one's end is the end for both.
    class TARN_API Collection
    {
    public:
        Collection();
        Collection(Collection const&) = delete;
        Collection& operator=(Collection const&) = delete;
        /// Runs host code unless a NotifyDelay is open.
        /// @throws what stopCollecting() throws, unless the stack is unwinding already
        ~Collection() noexcept(false);
    };

    static UpdateCollector* instance();

    UpdateCollector(UpdateCollector const&) = delete;
    UpdateCollector& operator=(UpdateCollector const&) = delete;

    /// Collects from now on. Does not nest.
    void startCollecting();
    /// Lets each object that was collected notify, in no told order.
    /// @throws the first exception of an observer, once all have notified
    void stopCollecting();
    /// Between startCollecting() and stopCollecting().
    bool isCollecting() const;
    /// Notes the object, once; it is kept alive until it has notified. When there is no memory to
    /// note it, it notifies at once.
    void addObservable(boost::shared_ptr<Observable const> const& observable);

    std::string description() const override;

private:
    struct State;

    UpdateCollector();
    ~UpdateCollector();

    void tellAtOnce(Observable const& observable);

    std::unique_ptr<State> m_state;
};

}  // namespace tarn
