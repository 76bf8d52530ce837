#include "datatypes/GraphicsUtil.h"

#include "datatypes/Point.h"
#include "datatypes/Rect.h"
#include "datatypes/TransformMatrix.h"

#include <cmath>

namespace tarn {

namespace GraphicsUtil {

namespace {

/// Around the axis that is neither of these two, from the first of them to the second.
void appendRotation(TransformMatrix& matrix, int from, int to, double angle)
{
    if (angle == 0)
        return;
    double const c = std::cos(angle);
    double const s = std::sin(angle);
    for (int row = 0; row < 3; ++row) {
        double const x = matrix.at(row, from);
        double const y = matrix.at(row, to);
        matrix.at(row, from) = x * c + y * s;
        matrix.at(row, to) = x * -s + y * c;
    }
}

TransformMatrix modelThenProjection(TransformMatrix const& model, TransformMatrix const& projection)
{
    TransformMatrix result(model);
    result.prepend(projection);
    return result;
}

}  // namespace

// The product without its terms that are zero: a renderer and each hit test want one a picture.
TransformMatrix calcTransformFromComponents(double const* scale, double const* translation,
                                            double const* rotation, double const* shear,
                                            double const* anchor)
{
    TransformMatrix result = TransformMatrix::shear(shear[0], shear[1]);
    appendRotation(result, 1, 2, rotation[0]);
    appendRotation(result, 2, 0, rotation[1]);
    appendRotation(result, 0, 1, rotation[2]);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            result.at(row, column) *= scale[column];
        result.at(row, 3) = result.at(row, 0) * -anchor[0] + result.at(row, 1) * -anchor[1] +
                            result.at(row, 2) * -anchor[2] + translation[row];
    }
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
