#include "datatypes/XMLIdentified.h"

#include "datatypes/IdentManager.h"
#include "datatypes/ReservedIdent.h"

namespace tarn {

XMLIdentified::XMLIdentified() : m_xmlIdent(IdentManager::instance()->newIdent()) {}

XMLIdentified::XMLIdentified(ReservedIdent& ident) : m_xmlIdent(ident.take()) {}

XMLIdentified::XMLIdentified(XMLIdentified const&) : XMLIdentified() {}

XMLIdentified& XMLIdentified::operator=(XMLIdentified const&)
{
    return *this;
}

XMLIdentified::~XMLIdentified()
{
    IdentManager::instance()->retireIdent(m_xmlIdent);
}

}  // namespace tarn
