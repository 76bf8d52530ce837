#pragma once

#include "clipbin/ClipBinFwd.h"
#include "datatypes/Export.h"
#include "datatypes/Subject.h"
#include "datatypes/XMLable.h"
#include "project/ConstIterator.h"
#include "project/ProjectFwd.h"
#include "project/SubProject.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <list>
#include <string>

namespace tarn {

/// The files a project has loaded, in the order of loading.
///
/// Edits need the write lock and end with notify(); queries take the read lock, and const iterators
/// hold it for their life. A dead project throws boost::bad_weak_ptr.
class TARN_API SourceBin : public SubProject, public XMLable, public Subject
{
public:
    using SourceList = std::list<boost::shared_ptr<Source>>;
    using ConstSourceIterator = ConstIterator<SourceList>;

    SourceBin(boost::weak_ptr<ThreadSafe const> const& lockOwner,
              boost::weak_ptr<ProjectEditRate> const& editRate);

    SourceList::iterator begin();
    SourceList::iterator end();
    ConstSourceIterator begin() const;
    ConstSourceIterator end() const;

    /// The source of this very file name, loaded if it is not here yet. Sentries are asked about a
    /// fresh source only, once it is complete.
    /// @throws DanglingWeakPtrException<ProjectEditRate> when the project is gone
    /// @throws TarnMediaLibException "attempting to load a media not accepted by sentries.", after
    ///         a line on the standard output, and what Source::create() throws
    boost::shared_ptr<Source> loadFile(std::string const& file);
    /// Appends, asking no sentry.
    /// @throws TarnMediaLibException for an empty pointer
    void addSource(boost::shared_ptr<Source> const& source);
    /// Takes out the first entry that is this source.
    /// @throws ValueException<boost::shared_ptr<Source const>> "unable to remove clip"
    void removeSource(boost::shared_ptr<Source const> const& source);
    /// The sentries are asked in the order added, inside the write lock: one must not wait for a
    /// thread that wants to read.
    /// @throws TarnMediaLibException for an empty pointer
    void addSentry(boost::shared_ptr<SourceBinSentry> const& sentry);

    /// Empty when there is none. Names are compared byte for byte.
    boost::shared_ptr<Source> sourceForFile(std::string const& file) const;
    /// Whether sourceForFile() finds one.
    bool isFileLoaded(std::string const& file) const;
    /// Whether this very source is here.
    bool containsSource(boost::shared_ptr<Source const> const& source) const;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

private:
    boost::shared_ptr<Source> createAndAddSource(std::string const& file);

    SourceList m_sources;
    boost::weak_ptr<ProjectEditRate> m_editRate;
    std::list<boost::shared_ptr<SourceBinSentry>> m_sentries;
};

}  // namespace tarn
