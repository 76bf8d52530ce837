#pragma once

#include <string>

namespace tarn {
class Project;

namespace test {

/// The whole model as exact text: objects by address, numbers to the last bit, then the XML without
/// its identity numbers. Equal texts mean the same objects in the same state.
///
/// Order of links and of medias within a link group is not part of the model, so links are sorted.
std::string exactModelText(Project const& project);

/// The project's XML with the identity numbers taken out, which differ from one object to the next.
std::string xmlWithoutIdents(Project const& project);

/// Takes the identity numbers out of any XML text of the library.
std::string withoutIdents(std::string const& xml);

}  // namespace test
}  // namespace tarn
