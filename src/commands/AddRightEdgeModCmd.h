#pragma once

#include "commands/AddEdgeModCmd.h"

namespace tarn {

/// Puts a modification on the edge at a media's end.
class TARN_API AddRightEdgeModCmd : public AddEdgeModCmd
{
public:
    static boost::shared_ptr<AddRightEdgeModCmd> create(boost::shared_ptr<Media const> const& media,
                                                        EdgeModification const& edgeMod);

    AddRightEdgeModCmd* clone() const override;

    void xmlName(XMLable::Options& options) const override;

protected:
    void addEdgeMod(CommandHandler* handler, boost::shared_ptr<Media const> const& media,
                    EdgeModification const& edgeMod) override;
    void removeEdgeMod(CommandHandler* handler, boost::shared_ptr<Media const> const& media,
                       EdgeModification const& edgeMod) override;

private:
    AddRightEdgeModCmd(boost::shared_ptr<Media const> const& media,
                       EdgeModification const& edgeMod);
};

}  // namespace tarn
