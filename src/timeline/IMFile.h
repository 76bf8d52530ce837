#pragma once

#include "timeline/AbstractIMFile.h"

namespace tarn {

/// A still picture from a file.
class TARN_API IMFile : public AbstractIMFile
{
public:
    using AbstractIMFile::AbstractIMFile;

    void receiveDispatcher(ConstMediaDispatcher* dispatcher) const override;
    void receiveDispatcher(MediaDispatcher* dispatcher) override;
    IMFile* clone() const override;

    std::string description() const override;
    void xmlName(XMLable::Options& options) const override;

protected:
    IMFile(IMFile const& other);

private:
    friend class MediaImpl;  // its cloneOf() copies
};

}  // namespace tarn
