#pragma once

#include "datatypes/Export.h"
#include "datatypes/XMLIdentified.h"

#include <iosfwd>
#include <string>

namespace tarn {

/// What can print itself as one XML element.
///
/// XML is only written. Takes no lock: the classes lock what they read. A stream that fails
/// swallows the rest, and what a class throws leaves its element half written.
class TARN_API XMLable : public virtual XMLIdentified
{
public:
    /// Passed through the whole tree unchanged.
    struct Options
    {
        std::ostream* stream;
        /// The directory to which file paths are written relative; empty: as they are.
        std::string basePath;
    };

    XMLable() = default;
    XMLable(XMLable const&) = default;
    XMLable& operator=(XMLable const&) = default;
    ~XMLable() override = default;

    /// Writes the element `indent` levels deep. No class overrides it.
    /// @param extraAttributes written as they are, as in name="opacity": how a parent labels a
    /// child
    virtual void toXML(Options& options, int indent, std::string const& extraAttributes) const;
    virtual void xmlName(Options& options) const = 0;
    /// key="value" pairs with a blank between two of them.
    virtual void xmlAttributes(Options& options) const = 0;
    /// The children and lines, `indent` levels deep.
    virtual void xmlBody(Options& options, int indent) const = 0;

    /// Paths are written as they are.
    void toXML(std::ostream& out) const;

    /// One blank a level.
    static std::string genIndent(int level);
};

}  // namespace tarn
