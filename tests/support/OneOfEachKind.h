#pragma once

#include "timeline/AMFile.h"
#include "timeline/AudioTransition.h"
#include "timeline/Callout.h"
#include "timeline/IMFile.h"
#include "timeline/ImageTransition.h"
#include "timeline/TextBox.h"
#include "timeline/VMFile.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

namespace tarn {
namespace test {

/// A parentless media of each kind there is, ten edit units long, without a source.
class OneOfEachKind
{
public:
    explicit OneOfEachKind(boost::weak_ptr<ThreadSafe const> const& project)
        : video(new VMFile(Range<long long>(0, 10), project, Rect<float>(0, 0, 64, 48), "video"))
        , sound(new AMFile(Range<long long>(0, 10), 44100, 16, project, "sound"))
        , still(new IMFile(0, 10, project, Rect<float>(0, 0, 64, 48), "still"))
        , fade(new ImageTransition(0, 10, project))
        , crossFade(new AudioTransition(Range<long long>(0, 10), project))
        , text(new TextBox("text", 0, 10, 0, 10, project))
        , callout(new Callout(0, 10, project, Rect<float>(0, 0, 64, 48), "callout"))
    {}

    boost::shared_ptr<VMFile> video;
    boost::shared_ptr<AMFile> sound;
    boost::shared_ptr<IMFile> still;
    boost::shared_ptr<ImageTransition> fade;
    boost::shared_ptr<AudioTransition> crossFade;
    boost::shared_ptr<TextBox> text;
    boost::shared_ptr<Callout> callout;
};

}  // namespace test
}  // namespace tarn
