#pragma once

#include "commands/MoveEdgeModCmd.h"

namespace tarn {

/// Changes the length of the edge at a media's end.
class TARN_API MoveRightEdgeModCmd : public MoveEdgeModCmd
{
public:
    /// `delta` is in edit units on the track's clock; a positive one lengthens.
    static boost::shared_ptr<MoveRightEdgeModCmd> create(
        boost::shared_ptr<EdgeModifiable const> const& edgeModifiable, long long delta);

    MoveRightEdgeModCmd* clone() const override;

    void xmlName(XMLable::Options& options) const override;

protected:
    long long edgeLength(EdgeModifiable const& edgeModifiable) const override;
    void setEdgeLength(EdgeModCommandHandler* handler,
                       boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
                       long long length) override;

private:
    MoveRightEdgeModCmd(boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
                        long long delta);
};

}  // namespace tarn
