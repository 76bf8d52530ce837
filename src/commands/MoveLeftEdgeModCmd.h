#pragma once

#include "commands/MoveEdgeModCmd.h"

namespace tarn {

/// Changes the length of the edge at a media's start.
class TARN_API MoveLeftEdgeModCmd : public MoveEdgeModCmd
{
public:
    /// `delta` is in edit units on the track's clock; a positive one lengthens.
    static boost::shared_ptr<MoveLeftEdgeModCmd> create(
        boost::shared_ptr<EdgeModifiable const> const& edgeModifiable, long long delta);

    MoveLeftEdgeModCmd* clone() const override;

    void xmlName(XMLable::Options& options) const override;

protected:
    long long edgeLength(EdgeModifiable const& edgeModifiable) const override;
    void setEdgeLength(EdgeModCommandHandler* handler,
                       boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
                       long long length) override;

private:
    MoveLeftEdgeModCmd(boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
                       long long delta);
};

}  // namespace tarn
