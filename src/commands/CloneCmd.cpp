#include "commands/CloneCmd.h"

#include "commands/RequireObjects.h"
#include "commands/XmlAttributes.h"
#include "datatypes/Cloneable.h"
#include "timeline/Media.h"

#include <ostream>

namespace tarn {

template <class T>
CloneCmd<T>::CloneCmd(boost::shared_ptr<T const> const& cloneable) : m_cloneable(cloneable)
{}

template <class T>
boost::shared_ptr<CloneCmd<T>> CloneCmd<T>::create(boost::shared_ptr<T const> const& cloneable)
{
    return boost::shared_ptr<CloneCmd<T>>(new CloneCmd<T>(cloneable));
}

template <class T>
CloneCmd<T>* CloneCmd<T>::clone() const
{
    return new CloneCmd<T>(*this);
}

template <class T>
bool CloneCmd<T>::execute(CommandHandler*)
{
    requireObjects(m_cloneable);
    if (!m_clone)
        m_clone = sharedClone<T>(m_cloneable);
    return true;
}

template <class T>
bool CloneCmd<T>::unexecute(CommandHandler*)
{
    return true;
}

template <class T>
void CloneCmd<T>::xmlName(XMLable::Options& options) const
{
    *options.stream << "CloneCmd";
}

template <class T>
void CloneCmd<T>::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options).ident("cloneable", m_cloneable).ident("clone", m_clone);
}

template class CloneCmd<Media>;

}  // namespace tarn
