#include "datatypes/TransformMatrix.h"

#include <algorithm>
#include <cmath>
#include <istream>
#include <limits>
#include <ostream>
#include <sstream>
#include <utility>

namespace tarn {

namespace {

TransformMatrix product(TransformMatrix const& a, TransformMatrix const& b)
{
    TransformMatrix result;
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column) {
            result.at(row, column) =
                a.at(row, 0) * b.at(0, column) + a.at(row, 1) * b.at(1, column) +
                a.at(row, 2) * b.at(2, column) + a.at(row, 3) * b.at(3, column);
        }
    }
    return result;
}

/// Of the row with the largest element in `column`, at or below the diagonal.
int pivotRow(TransformMatrix const& matrix, int column)
{
    int best = column;
    for (int row = column + 1; row < 4; ++row) {
        if (std::fabs(matrix.at(row, column)) > std::fabs(matrix.at(best, column)))
            best = row;
    }
    return best;
}

}  // namespace

TransformMatrix::TransformMatrix() : m_elements{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1} {}

TransformMatrix::TransformMatrix(double const* elements)
{
    std::copy(elements, elements + 16, m_elements);
}

std::string TransformMatrix::description() const
{
    std::ostringstream out;
    out << *this;
    return out.str();
}

Point TransformMatrix::operator*(Point const& point) const
{
    double const* const m = m_elements;
    double const w = m[12] * point.x + m[13] * point.y + m[14] * point.z + m[15];
    return Point((m[0] * point.x + m[1] * point.y + m[2] * point.z + m[3]) / w,
                 (m[4] * point.x + m[5] * point.y + m[6] * point.z + m[7]) / w,
                 (m[8] * point.x + m[9] * point.y + m[10] * point.z + m[11]) / w);
}

Quad TransformMatrix::operator*(Quad const& quad) const
{
    return Quad(*this * quad.at(0), *this * quad.at(1), *this * quad.at(2), *this * quad.at(3));
}

TransformMatrix TransformMatrix::operator*(double factor) const
{
    TransformMatrix result(*this);
    result *= factor;
    return result;
}

TransformMatrix& TransformMatrix::operator*=(double factor)
{
    for (double& element : m_elements)
        element *= factor;
    return *this;
}

TransformMatrix TransformMatrix::operator+(TransformMatrix const& other) const
{
    TransformMatrix result(*this);
    result += other;
    return result;
}

TransformMatrix& TransformMatrix::operator+=(TransformMatrix const& other)
{
    for (int i = 0; i < 16; ++i)
        m_elements[i] += other.m_elements[i];
    return *this;
}

TransformMatrix& TransformMatrix::operator-=(TransformMatrix const& other)
{
    for (int i = 0; i < 16; ++i)
        m_elements[i] -= other.m_elements[i];
    return *this;
}

bool TransformMatrix::operator==(TransformMatrix const& other) const
{
    return std::equal(m_elements, m_elements + 16, other.m_elements);
}

void TransformMatrix::append(TransformMatrix const& other)
{
    *this = product(*this, other);
}

void TransformMatrix::prepend(TransformMatrix const& other)
{
    *this = product(other, *this);
}

double TransformMatrix::determinant() const
{
    // By the 2 x 2 minors of the upper two rows and of the lower two.
    double const* const m = m_elements;
    double const upper01 = m[0] * m[5] - m[1] * m[4];
    double const upper02 = m[0] * m[6] - m[2] * m[4];
    double const upper03 = m[0] * m[7] - m[3] * m[4];
    double const upper12 = m[1] * m[6] - m[2] * m[5];
    double const upper13 = m[1] * m[7] - m[3] * m[5];
    double const upper23 = m[2] * m[7] - m[3] * m[6];
    double const lower01 = m[8] * m[13] - m[9] * m[12];
    double const lower02 = m[8] * m[14] - m[10] * m[12];
    double const lower03 = m[8] * m[15] - m[11] * m[12];
    double const lower12 = m[9] * m[14] - m[10] * m[13];
    double const lower13 = m[9] * m[15] - m[11] * m[13];
    double const lower23 = m[10] * m[15] - m[11] * m[14];
    return upper01 * lower23 - upper02 * lower13 + upper03 * lower12 + upper12 * lower03 -
           upper13 * lower02 + upper23 * lower01;
}

bool TransformMatrix::isSingular() const
{
    // Rows are brought near 1 by powers of two, which is exact, so that the determinant of a very
    // small scale does not underflow to zero.
    TransformMatrix scaled(*this);
    for (int row = 0; row < 4; ++row) {
        double largest = 0;
        for (int column = 0; column < 4; ++column)
            largest = std::max(largest, std::fabs(at(row, column)));
        int exponent = 0;
        std::frexp(largest, &exponent);
        for (int column = 0; column < 4; ++column)
            scaled.at(row, column) = std::ldexp(at(row, column), -exponent);
    }
    return scaled.determinant() == 0;
}

TransformMatrix TransformMatrix::inverse() const
{
    if (isSingular()) {
        TransformMatrix const zero = TransformMatrix() * 0.0;
        return zero * std::numeric_limits<double>::quiet_NaN();
    }
    TransformMatrix work(*this);
    TransformMatrix result;
    for (int column = 0; column < 4; ++column) {
        int const pivot = pivotRow(work, column);
        work.rowOpSwapRow(column, pivot);
        result.rowOpSwapRow(column, pivot);

        double const divisor = work.at(column, column);
        work.rowOpMultiply(column, 1.0 / divisor);
        result.rowOpMultiply(column, 1.0 / divisor);

        for (int row = 0; row < 4; ++row) {
            if (row == column)
                continue;
            double const factor = -work.at(row, column);
            work.rowOpAddRow(row, column, factor);
            result.rowOpAddRow(row, column, factor);
        }
    }
    return result;
}

void TransformMatrix::luDecomposition(TransformMatrix& lower, TransformMatrix& upper) const
{
    TransformMatrix l;
    TransformMatrix u(*this);
    for (int column = 0; column < 4; ++column) {
        for (int row = column + 1; row < 4; ++row) {
            double const factor = u.at(row, column) / u.at(column, column);
            l.at(row, column) = factor;
            u.rowOpAddRow(row, column, -factor);
            // Rounding must not leave a remainder below the diagonal.
            if (std::isfinite(factor))
                u.at(row, column) = 0;
        }
    }
    lower = l;
    upper = u;
}

void TransformMatrix::rowOpMultiply(int row, double factor)
{
    for (int column = 0; column < 4; ++column)
        at(row, column) *= factor;
}

void TransformMatrix::rowOpAddRow(int row, int added, double factor)
{
    for (int column = 0; column < 4; ++column)
        at(row, column) += factor * at(added, column);
}

void TransformMatrix::rowOpSwapRow(int row1, int row2)
{
    for (int column = 0; column < 4; ++column)
        std::swap(at(row1, column), at(row2, column));
}

void TransformMatrix::normalizeColumnVectors()
{
    for (int column = 0; column < 4; ++column) {
        double const bottom = at(3, column);
        for (int row = 0; row < 4; ++row)
            at(row, column) /= bottom;
    }
}

std::ostream& operator<<(std::ostream& out, TransformMatrix const& matrix)
{
    out << '{';
    for (int row = 0; row < 4; ++row) {
        out << (row == 0 ? "{" : ",{") << matrix.at(row, 0) << ',' << matrix.at(row, 1) << ','
            << matrix.at(row, 2) << ',' << matrix.at(row, 3) << '}';
    }
    return out << '}';
}

std::istream& operator>>(std::istream& in, TransformMatrix& matrix)
{
    // In front of each row stand two delimiters: "{{" at first, then ",{". Then, each number is
    // followed by one.
    TransformMatrix read;
    char delimiter = 0;
    for (int row = 0; row < 4; ++row) {
        in >> delimiter >> delimiter;
        for (int column = 0; column < 4; ++column)
            in >> read.at(row, column) >> delimiter;
    }
    in >> delimiter;
    if (in)
        matrix = read;
    return in;
}

}  // namespace tarn
