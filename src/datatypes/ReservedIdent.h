#pragma once

#include "datatypes/Export.h"

namespace tarn {

/// The ident of an object that will be made on first use, drawn in the order in which it would have
/// been drawn had the object been made at once: which numbers XML shows does not depend on who
/// looked where. Given back at the end unless the object has taken it over.
class TARN_API ReservedIdent
{
public:
    /// Holds none.
    ReservedIdent() = default;
    /// Takes the next number of the process.
    static ReservedIdent draw();
    /// Leaves the other one without.
    ReservedIdent(ReservedIdent&& other) noexcept;
    ReservedIdent& operator=(ReservedIdent&& other) = delete;
    ~ReservedIdent();

    /// Holds one that was drawn elsewhere; it holds none yet.
    void hold(unsigned int ident);

    bool isHeld() const { return m_isHeld; }
    /// The one held.
    unsigned int ident() const { return m_ident; }
    /// Gives it away; a fresh one if there is none.
    unsigned int take();

private:
    unsigned int m_ident = 0;
    bool m_isHeld = false;
};

}  // namespace tarn
