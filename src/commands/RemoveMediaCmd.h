#pragma once

#include "commands/Command.h"
#include "commands/CommandHandler.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

///     before   A1: aaa... / V1: aaabbb
///     after    A1: ...... / V1: ...bbb
///
/// Takes a media and all medias linked to it off their tracks. The links stay, so that undo brings
/// the whole group back. Made for T = Media.
/// @throws TarnMediaLibException on execution when one of them lies on no track
/// @throws DanglingWeakPtrException<Media const> on execution for a dead link
template <class T>
class TARN_API RemoveMediaCmd : public Command
{
public:
    RemoveMediaCmd(boost::shared_ptr<Track const> const& track,
                   boost::shared_ptr<T const> const& media);
    static boost::shared_ptr<RemoveMediaCmd<T>> create(boost::shared_ptr<Track const> const& track,
                                                       boost::shared_ptr<T const> const& media);

    RemoveMediaCmd<T>* clone() const override;
    bool execute(CommandHandler* handler) override;
    /// All come back or none.
    bool unexecute(CommandHandler* handler) override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

private:
    boost::shared_ptr<Track const> m_track;
    boost::shared_ptr<T const> m_media;
    boost::shared_ptr<RemovedMedias> m_removed;
};

extern template class TARN_API RemoveMediaCmd<Media>;

}  // namespace tarn
