#pragma once

#include "datatypes/DatatypesFwd.h"
#include "datatypes/Export.h"

namespace tarn {

/// Gives an object a number that no other living object has; XML names objects by it.
///
/// A virtual base, so that an object has one number however it comes by it. The number is fixed for
/// life and used again afterwards, so it means nothing in a later dump.
class TARN_API XMLIdentified
{
public:
    XMLIdentified();
    /// Takes the ident over.
    explicit XMLIdentified(ReservedIdent& ident);
    /// A copy is another object: it has its own number.
    XMLIdentified(XMLIdentified const& other);
    /// Keeps the number it has.
    XMLIdentified& operator=(XMLIdentified const& other);
    virtual ~XMLIdentified();

    /// Unlike that of every other living object.
    unsigned int xmlIdent() const { return m_xmlIdent; }

private:
    unsigned int m_xmlIdent;
};

}  // namespace tarn
