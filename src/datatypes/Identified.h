#pragma once

#include "datatypes/Export.h"
#include "datatypes/LateObject.h"
#include "datatypes/XMLable.h"
#include "parameters/ParametersFwd.h"
#include "project/ProjectFwd.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <string>

namespace tarn {

/// An object that a user can name: its identifying text, which is not the number that XML uses.
class TARN_API Identified
{
public:
    explicit Identified(boost::weak_ptr<ThreadSafe const> const& project,
                        std::string const& text = std::string(),
                        ReservedIdent attributeIdent = ReservedIdent::draw());
    virtual ~Identified();

    /// The text as an attribute, made when first asked for.
    virtual boost::shared_ptr<Attribute<std::string>> identAttribute();
    virtual boost::shared_ptr<Attribute<std::string> const> identAttribute() const;

protected:
    /// The copy's text is its own.
    Identified(Identified const& other);
    Identified& operator=(Identified const& other) = delete;

    bool isIdentAttributeMade() const { return m_identAttribute.ifMade() != nullptr; }
    /// Writes the attribute, labelled as what it is, whether it is made or not.
    void xmlOfIdent(XMLable::Options& options, int indent) const;
    /// What the attribute says, under the read lock.
    /// @throws boost::bad_weak_ptr for a dead project
    std::string identText() const;

private:
    boost::shared_ptr<Attribute<std::string>> const& attribute() const;
    std::string textToCopy() const;

    boost::weak_ptr<ThreadSafe const> m_identProject;
    // The text while nobody has asked for the attribute, as for most nobody ever does.
    std::string m_firstText;
    LateObject<Attribute<std::string>, 1> m_identAttribute;
};

}  // namespace tarn
