#include "hostile/SourceMaker.h"

#include "clipbin/MediaFileStats.h"
#include "clipbin/Source.h"
#include "exceptions/TarnMediaLibException.h"
#include "project/Project.h"
#include "timeline/Timeline.h"

#include <sstream>

namespace tarn {
namespace test {

void makeSource(boost::shared_ptr<MediaFileStats> const& stats)
{
    static boost::shared_ptr<Project> const& s_project =
        *new boost::shared_ptr<Project>(Project::create(boost::rational<unsigned long>(30, 1)));
    try {
        std::ostringstream xml;
        Source::create(s_project, s_project, stats)->toXML(xml);
    } catch (TarnMediaLibException const&) {
    }
}

}  // namespace test
}  // namespace tarn
