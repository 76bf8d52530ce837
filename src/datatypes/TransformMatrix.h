#pragma once

#include "datatypes/Export.h"
#include "datatypes/Point.h"
#include "datatypes/Quad.h"

#include <iosfwd>
#include <string>

namespace tarn {

/// A 4 x 4 matrix, row-major. Points are columns, so the matrix stands on their left and a
/// translation lies in its last column. Rows and columns count from 0 and are not bounds-tested. A
/// value, without a lock; nothing is thrown.
class TARN_API TransformMatrix : public TarnObject
{
public:
    /// The identity.
    TransformMatrix();
    /// From sixteen numbers, row after row.
    explicit TransformMatrix(double const* elements);
    TransformMatrix(TransformMatrix const& other) = default;
    TransformMatrix& operator=(TransformMatrix const& other) = default;

    std::string description() const override;

    /// The element in that row and column.
    double& at(int row, int column) { return m_elements[row * 4 + column]; }
    double at(int row, int column) const { return m_elements[row * 4 + column]; }
    double& operator()(int row, int column) { return at(row, column); }
    double operator()(int row, int column) const { return at(row, column); }

    /// With the homogeneous divide.
    Point operator*(Point const& point) const;
    /// Each corner.
    Quad operator*(Quad const& quad) const;

    /// Element by element.
    TransformMatrix operator*(double factor) const;
    TransformMatrix& operator*=(double factor);
    TransformMatrix operator+(TransformMatrix const& other) const;
    TransformMatrix& operator+=(TransformMatrix const& other);
    TransformMatrix& operator-=(TransformMatrix const& other);
    bool operator==(TransformMatrix const& other) const;
    bool operator!=(TransformMatrix const& other) const { return !(*this == other); }

    /// Becomes this x other, so `other` acts on a point first.
    void append(TransformMatrix const& other);
    /// Becomes other x this, so `other` acts on a point last.
    void prepend(TransformMatrix const& other);

    /// 0 for a singular matrix.
    double determinant() const;
    /// A singular matrix has an inverse of elements that are not finite.
    TransformMatrix inverse() const;
    /// lower x upper = this, the lower one with ones on its diagonal. Rows are not swapped, so a
    /// zero on the way yields elements that are not finite.
    void luDecomposition(TransformMatrix& lower, TransformMatrix& upper) const;

    /// Row times factor.
    void rowOpMultiply(int row, double factor);
    /// Adds factor times row `added` to `row`.
    void rowOpAddRow(int row, int added, double factor);
    /// Exchanges two rows.
    void rowOpSwapRow(int row1, int row2);

    /// Divides each column by its bottom element.
    void normalizeColumnVectors();

    /// Factors along each axis.
    static TransformMatrix scale(double x, double y, double z);
    /// By so much along each axis.
    static TransformMatrix translate(double x, double y, double z);
    /// Angles in radians, whose sign is lost: a negative one shears like a positive one.
    static TransformMatrix shear(double angleX, double angleY);
    /// Angles in radians.
    static TransformMatrix rotateAroundX(double angle);
    /// Radians, from z towards x.
    static TransformMatrix rotateAroundY(double angle);
    /// Radians, from x towards y.
    static TransformMatrix rotateAroundZ(double angle);
    /// Onto the plane z = `planeZ`, seen from `eye`: each point goes to where its line to the eye
    /// meets the plane. Not finite for an eye in that plane.
    static TransformMatrix perspectiveProjection(Point const& eye, double planeZ);
    /// `fovY` in radians, `aspect` is width by height: with f = cot(fovY / 2), x by f / aspect and
    /// y by f, both over -z; depth from -1 at the near distance to 1 at the far one.
    static TransformMatrix perspectiveProjection(double fovY, double aspect, double nearDistance,
                                                 double farDistance);
    /// Left-handed and transposed, meant for points as rows; depth from 0 to 1.
    static TransformMatrix perspectiveProjectionLH(double fovY, double aspect, double nearDistance,
                                                   double farDistance);
    /// From the scene to an eye that looks along -z: rows s, u, -f of f = lookAt - eye, s = f x up,
    /// u = s x f, f and up one long.
    /// Kept so: the last column is the eye negated as it stands, not turned.
    static TransformMatrix cameraLookAt(Point const& eye, Point const& lookAt, Point const& up);
    /// Left-handed and transposed, meant for points as rows.
    static TransformMatrix cameraLookAtLH(Point const& eye, Point const& lookAt, Point const& up);
    /// Four points as columns, each with 1 at the bottom.
    static TransformMatrix quad(Point const* points);

private:
    bool isSingular() const;

    double m_elements[16];
};

/// Written as `{{a,b,c,d},{e,f,g,h},{i,j,k,l},{m,n,o,p}}`.
TARN_API std::ostream& operator<<(std::ostream& out, TransformMatrix const& matrix);
/// Reads the same shape; each delimiter may be any character. Unchanged when reading fails.
TARN_API std::istream& operator>>(std::istream& in, TransformMatrix& matrix);

}  // namespace tarn
