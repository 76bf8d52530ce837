#include "datatypes/ReservedIdent.h"

#include "datatypes/IdentManager.h"

namespace tarn {

ReservedIdent ReservedIdent::draw()
{
    ReservedIdent drawn;
    drawn.m_ident = IdentManager::instance()->newIdent();
    drawn.m_isHeld = true;
    return drawn;
}

ReservedIdent::ReservedIdent(ReservedIdent&& other) noexcept
    : m_ident(other.m_ident), m_isHeld(other.m_isHeld)
{
    other.m_isHeld = false;
}

ReservedIdent::~ReservedIdent()
{
    if (m_isHeld)
        IdentManager::instance()->retireIdent(m_ident);
}

void ReservedIdent::hold(unsigned int ident)
{
    m_ident = ident;
    m_isHeld = true;
}

unsigned int ReservedIdent::take()
{
    if (!m_isHeld)
        return IdentManager::instance()->newIdent();
    m_isHeld = false;
    return m_ident;
}

}  // namespace tarn
