#include "support/ScriptedCmd.h"

#include <ostream>

namespace tarn {
namespace test {

void ScriptedCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << m_name;
}

}  // namespace test
}  // namespace tarn
