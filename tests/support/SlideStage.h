#pragma once

#include "edgemods/AuxEdgeModInfo.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"
#include "support/FakeProject.h"
#include "timeline/IMFile.h"
#include "timeline/VisualMixer.h"

#include <boost/shared_ptr.hpp>

namespace tarn {
namespace test {

/// What a mixer-relative slide is measured on: a mixer of 640 x 480 and a still of 100 x 50 that
/// lasts 100.
struct SlideStage
{
    AuxEdgeModInfo info() const
    {
        AuxEdgeModInfo info;
        info.setVisualMixer(mixer);
        info.setVisualMedia(media);
        return info;
    }

    boost::shared_ptr<FakeProject> project = FakeProject::create();
    boost::shared_ptr<VisualMixer> mixer{new VisualMixer(640, 480, project->weak())};
    boost::shared_ptr<IMFile> media{
        new IMFile(0, 100, project->weak(), Rect<float>(0, 0, 100, 50), "still")};
};

}  // namespace test
}  // namespace tarn
