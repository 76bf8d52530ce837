#pragma once

#include "datatypes/Export.h"
#include "datatypes/ScreenMetaData.h"

namespace tarn {

/// The one form of ScreenMetaData. Const accessors fill the loaded parameters, without the
/// project's lock: threads that ask at the same time may all load, and get one each.
class TARN_API ScreenMetaDataImpl : public ScreenMetaData
{
public:
    ScreenMetaDataImpl(boost::weak_ptr<ThreadSafe const> const& lockOwner,
                       boost::weak_ptr<FileRepresentation const> const& parent,
                       boost::weak_ptr<ProjectEditRate const> const& rate);

    ReadWriteMutex& mutex() const override;

    void setParent(boost::weak_ptr<FileRepresentation const> const& parent) override;

    void setTopmostWindowCoordinates(std::string const& fileName) override;
    void setCursorLocation(std::string const& fileName) override;
    void setCursorAction(std::string const& fileName) override;
    void setDirtyRects(std::string const& fileName) override;
    std::string const& topmostWindowCoordinatesFilename() const override;
    std::string const& cursorLocationFilename() const override;
    std::string const& cursorActionFilename() const override;
    std::string const& dirtyRectsFilename() const override;

    boost::shared_ptr<ParameterInterface> topmostWindowCoordinates() const override;
    boost::shared_ptr<ParameterInterface> cursorLocation() const override;
    boost::shared_ptr<ParameterInterface> cursorAction() const override;
    boost::shared_ptr<ParameterInterface> dirtyRects() const override;

    bool isValid() const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

private:
    boost::shared_ptr<ParameterInterface> load(boost::shared_ptr<ParameterInterface>& parameter,
                                               std::string const& fileName,
                                               std::string const& paramName) const;

    boost::weak_ptr<ThreadSafe const> m_lockOwner;
    boost::weak_ptr<FileRepresentation const> m_parent;
    std::string m_topmostWindowCoordinatesFilename;
    std::string m_cursorLocationFilename;
    std::string m_cursorActionFilename;
    std::string m_dirtyRectsFilename;
    mutable boost::shared_ptr<ParameterInterface> m_topmostWindowCoordinates;
    mutable boost::shared_ptr<ParameterInterface> m_cursorLocation;
    mutable boost::shared_ptr<ParameterInterface> m_cursorAction;
    mutable boost::shared_ptr<ParameterInterface> m_dirtyRects;
    boost::weak_ptr<ProjectEditRate const> m_editRate;
};

}  // namespace tarn
