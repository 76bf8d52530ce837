#include "datatypes/GraphicsUtil.h"

#include "datatypes/Point.h"
#include "datatypes/Rect.h"
#include "datatypes/TransformMatrix.h"

namespace tarn {

namespace GraphicsUtil {

namespace {

TransformMatrix modelThenProjection(TransformMatrix const& model, TransformMatrix const& projection)
{
    TransformMatrix result(model);
    result.prepend(projection);
    return result;
}

}  // namespace

TransformMatrix calcTransformFromComponents(double const* scale, double const* translation,
                                            double const* rotation, double const* shear,
                                            double const* anchor)
{
    TransformMatrix result;
    result.append(TransformMatrix::translate(translation[0], translation[1], translation[2]));
    result.append(TransformMatrix::shear(shear[0], shear[1]));
    result.append(TransformMatrix::rotateAroundX(rotation[0]));
    result.append(TransformMatrix::rotateAroundY(rotation[1]));
    result.append(TransformMatrix::rotateAroundZ(rotation[2]));
    result.append(TransformMatrix::scale(scale[0], scale[1], scale[2]));
    result.append(TransformMatrix::translate(-anchor[0], -anchor[1], -anchor[2]));
    return result;
}

Point project(Point const& point, TransformMatrix const& model, TransformMatrix const& projection,
              Rect<int> const& viewport)
{
    Point const n = modelThenProjection(model, projection) * point;
    return Point(viewport.x + viewport.width * (n.x + 1) * 0.5,
                 viewport.y + viewport.height * (n.y + 1) * 0.5, (n.z + 1) * 0.5);
}

Point unProject(Point const& point, TransformMatrix const& model, TransformMatrix const& projection,
                Rect<int> const& viewport)
{
    Point const n(2 * (point.x - viewport.x) / viewport.width - 1,
                  2 * (point.y - viewport.y) / viewport.height - 1, 2 * point.z - 1);
    return modelThenProjection(model, projection).inverse() * n;
}

}  // namespace GraphicsUtil

}  // namespace tarn
