#include "exceptions/CollisionException.h"

namespace tarn {

CollisionException::CollisionException(boost::shared_ptr<MediaList> const& medias)
    : TarnMediaLibException("Collision exception."), m_medias(medias)
{}

}  // namespace tarn
