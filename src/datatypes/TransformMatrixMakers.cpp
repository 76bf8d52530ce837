#include "datatypes/TransformMatrix.h"
#include "datatypes/VectorUtil.h"

#include <cmath>

namespace tarn {

namespace {

Point normalized(Point vector)
{
    VectorUtil::normalize(vector);
    return vector;
}

/// The tangent's absolute value.
double tangentWithoutSign(double angle)
{
    if (angle == 0)
        return 0;
    double const sine = std::sin(angle);
    double const square = sine * sine;
    return std::sqrt(square / (1 - square));
}

TransformMatrix zeros()
{
    double const elements[16] = {};
    return TransformMatrix(elements);
}

void setRow(TransformMatrix& matrix, int row, double a, double b, double c, double d)
{
    matrix.at(row, 0) = a;
    matrix.at(row, 1) = b;
    matrix.at(row, 2) = c;
    matrix.at(row, 3) = d;
}

}  // namespace

TransformMatrix TransformMatrix::scale(double x, double y, double z)
{
    TransformMatrix result;
    result.at(0, 0) = x;
    result.at(1, 1) = y;
    result.at(2, 2) = z;
    return result;
}

TransformMatrix TransformMatrix::translate(double x, double y, double z)
{
    TransformMatrix result;
    result.at(0, 3) = x;
    result.at(1, 3) = y;
    result.at(2, 3) = z;
    return result;
}

TransformMatrix TransformMatrix::shear(double angleX, double angleY)
{
    // Kept so: without the tangents' signs, on which stored shear values rest.
    double const p = tangentWithoutSign(angleX);
    double const q = tangentWithoutSign(angleY);
    TransformMatrix result;
    result.at(0, 0) = p * q + 1;
    result.at(0, 1) = p;
    result.at(1, 0) = q;
    return result;
}

TransformMatrix TransformMatrix::rotateAroundX(double angle)
{
    double const c = std::cos(angle);
    double const s = std::sin(angle);
    TransformMatrix result;
    result.at(1, 1) = c;
    result.at(1, 2) = -s;
    result.at(2, 1) = s;
    result.at(2, 2) = c;
    return result;
}

TransformMatrix TransformMatrix::rotateAroundY(double angle)
{
    double const c = std::cos(angle);
    double const s = std::sin(angle);
    TransformMatrix result;
    result.at(0, 0) = c;
    result.at(0, 2) = s;
    result.at(2, 0) = -s;
    result.at(2, 2) = c;
    return result;
}

TransformMatrix TransformMatrix::rotateAroundZ(double angle)
{
    double const c = std::cos(angle);
    double const s = std::sin(angle);
    TransformMatrix result;
    result.at(0, 0) = c;
    result.at(0, 1) = -s;
    result.at(1, 0) = s;
    result.at(1, 1) = c;
    return result;
}

TransformMatrix TransformMatrix::perspectiveProjection(Point const& eye, double planeZ)
{
    double const k = eye.z - planeZ;
    TransformMatrix result;
    result.at(0, 2) = -eye.x / k;
    result.at(0, 3) = planeZ * eye.x / k;
    result.at(1, 2) = -eye.y / k;
    result.at(1, 3) = planeZ * eye.y / k;
    result.at(3, 2) = -1 / k;
    result.at(3, 3) = eye.z / k;
    return result;
}

TransformMatrix TransformMatrix::perspectiveProjection(double fovY, double aspect,
                                                       double nearDistance, double farDistance)
{
    double const f = 1 / std::tan(fovY * 0.5);
    double const depth = nearDistance - farDistance;
    TransformMatrix result = zeros();
    result.at(0, 0) = f / aspect;
    result.at(1, 1) = f;
    result.at(2, 2) = (farDistance + nearDistance) / depth;
    result.at(2, 3) = nearDistance * 2 * farDistance / depth;
    result.at(3, 2) = -1;
    return result;
}

TransformMatrix TransformMatrix::perspectiveProjectionLH(double fovY, double aspect,
                                                         double nearDistance, double farDistance)
{
    double const f = 1 / std::tan(fovY * 0.5);
    double const depth = farDistance - nearDistance;
    TransformMatrix result = zeros();
    result.at(0, 0) = f / aspect;
    result.at(1, 1) = f;
    result.at(2, 2) = farDistance / depth;
    result.at(2, 3) = 1;
    result.at(3, 2) = -(farDistance * nearDistance) / depth;
    return result;
}

TransformMatrix TransformMatrix::cameraLookAt(Point const& eye, Point const& lookAt,
                                              Point const& up)
{
    Point const f = normalized(lookAt - eye);
    Point const s = VectorUtil::crossProduct(f, normalized(up));
    Point const u = VectorUtil::crossProduct(s, f);
    TransformMatrix result;
    // Kept so: the eye itself, not turned by the rotation, is what the scene's cameras rest on.
    setRow(result, 0, s.x, s.y, s.z, -eye.x);
    setRow(result, 1, u.x, u.y, u.z, -eye.y);
    setRow(result, 2, -f.x, -f.y, -f.z, -eye.z);
    return result;
}

TransformMatrix TransformMatrix::cameraLookAtLH(Point const& eye, Point const& lookAt,
                                                Point const& up)
{
    Point const z = normalized(lookAt - eye);
    Point const x = normalized(VectorUtil::crossProduct(up, z));
    Point const y = VectorUtil::crossProduct(z, x);
    TransformMatrix result;
    setRow(result, 0, x.x, y.x, z.x, 0);
    setRow(result, 1, x.y, y.y, z.y, 0);
    setRow(result, 2, x.z, y.z, z.z, 0);
    setRow(result, 3, -VectorUtil::dotProduct(x, eye), -VectorUtil::dotProduct(y, eye),
           -VectorUtil::dotProduct(z, eye), 1);
    return result;
}

TransformMatrix TransformMatrix::quad(Point const* points)
{
    TransformMatrix result;
    for (int column = 0; column < 4; ++column) {
        result.at(0, column) = points[column].x;
        result.at(1, column) = points[column].y;
        result.at(2, column) = points[column].z;
        result.at(3, column) = 1;
    }
    return result;
}

}  // namespace tarn
