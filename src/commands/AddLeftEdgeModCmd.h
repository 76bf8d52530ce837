#pragma once

#include "commands/AddEdgeModCmd.h"

namespace tarn {

/// Puts a modification on the edge at a media's start.
class TARN_API AddLeftEdgeModCmd : public AddEdgeModCmd
{
public:
    static boost::shared_ptr<AddLeftEdgeModCmd> create(boost::shared_ptr<Media const> const& media,
                                                       EdgeModification const& edgeMod);

    AddLeftEdgeModCmd* clone() const override;

    void xmlName(XMLable::Options& options) const override;

protected:
    void addEdgeMod(CommandHandler* handler, boost::shared_ptr<Media const> const& media,
                    EdgeModification const& edgeMod) override;
    void removeEdgeMod(CommandHandler* handler, boost::shared_ptr<Media const> const& media,
                       EdgeModification const& edgeMod) override;

private:
    AddLeftEdgeModCmd(boost::shared_ptr<Media const> const& media, EdgeModification const& edgeMod);
};

}  // namespace tarn
