// Commands with an empty pointer where an object should be: all are refused as they run.

#include "fuzz/CommandMaker.h"

#include "fuzz/NullEdits.h"
#include "fuzz/Stage.h"

namespace tarn {
namespace test {

void CommandMaker::makeNullArgument()
{
    NamedMedia const media = anyPlaced();
    if (!media.media || !media.on.track)
        return;
    NullEdit const& edit = nullEdits()[below(nullEdits().size())];
    also("boost::shared_ptr<Track> const on = track(\"" + media.on.name + "\");");
    also("boost::shared_ptr<Media> const it = " + media.code + ";");
    set(edit.make(m_stage, media.on.track, media.media), edit.code());
}

}  // namespace test
}  // namespace tarn
