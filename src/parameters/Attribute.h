#pragma once

#include "datatypes/Cloneable.h"
#include "datatypes/DatatypesFwd.h"
#include "datatypes/Export.h"
#include "datatypes/Point.h"
#include "datatypes/Rect.h"
#include "datatypes/Subject.h"
#include "datatypes/XMLable.h"
#include "project/SubProject.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <string>

namespace tarn {

/// One value that does not change over time; its observers hear of a write.
template <class T>
class TARN_API Attribute : public SubProject, public Cloneable, public XMLable, public Subject
{
public:
    Attribute(T const& value, boost::weak_ptr<ThreadSafe const> const& project);
    /// With an ident that was held back for it.
    Attribute(T const& value, boost::weak_ptr<ThreadSafe const> const& project,
              ReservedIdent& ident);
    /// The copied attribute's read lock is held by the caller; clone() takes it.
    Attribute(Attribute const& other);
    Attribute& operator=(Attribute const& other) = delete;

    /// A copy, made under the read lock.
    T value() const;
    /// Takes no lock, as it runs inside commands; notifies.
    void setValue(T const& value);

    Attribute* clone() const override;
    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;
    /// The element of one that was not made yet, with what its constructor would be given.
    static void xmlBeforeFirstUse(XMLable::Options& options, int indent, std::string const& label,
                                  T const& value, unsigned int ident);

private:
    T m_value;
};

extern template class TARN_API Attribute<float>;
extern template class TARN_API Attribute<double>;
extern template class TARN_API Attribute<unsigned int>;
extern template class TARN_API Attribute<std::string>;
extern template class TARN_API Attribute<Point>;
extern template class TARN_API Attribute<Rect<float>>;
extern template class TARN_API Attribute<boost::shared_ptr<ScreenMetaData const>>;

}  // namespace tarn
