#pragma once

#include "datatypes/Export.h"
#include "datatypes/SpinLock.h"
#include "datatypes/TarnObject.h"

#include <cstddef>
#include <vector>

namespace tarn {

/// The source of the numbers by which XML names objects: from 0 up, the last retired one first.
///
/// One for the process, never freed, since objects of a host may outlive everything else. Callers
/// are to make the first call on one thread; later ones are safe, for reading threads copy and
/// destroy objects too.
class TARN_API IdentManager : public TarnObject
{
public:
    static IdentManager* instance();

    IdentManager(IdentManager const&) = delete;
    IdentManager& operator=(IdentManager const&) = delete;

    /// The number retired last, or else one that was never given out.
    unsigned int newIdent();
    /// Gives back an ident that newIdent() gave out.
    void retireIdent(unsigned int ident);

    /// The same for several at once, from front to back.
    void newIdents(unsigned int* idents, std::size_t count);
    /// Gives back several at once, from front to back.
    void retireIdents(unsigned int const* idents, std::size_t count);

    std::string description() const override;

private:
    IdentManager() = default;
    ~IdentManager() = default;

    void makeRoomFor(std::size_t fresh);

    unsigned int m_nextIdent = 0;
    std::vector<unsigned int> m_retiredIdents;
    SpinLock m_lock;
};

}  // namespace tarn
