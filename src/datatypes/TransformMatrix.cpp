#include "datatypes/TransformMatrix.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <istream>
#include <limits>
#include <ostream>
#include <sstream>
#include <utility>

namespace tarn {

namespace {

/// Row by row, each element summed up from the left, so that a compiler can do columns side by
/// side.
TransformMatrix product(TransformMatrix const& a, TransformMatrix const& b)
{
    double elements[16];
    for (int row = 0; row < 4; ++row) {
        double const first = a.at(row, 0);
        double const second = a.at(row, 1);
        double const third = a.at(row, 2);
        double const fourth = a.at(row, 3);
        for (int column = 0; column < 4; ++column) {
            elements[row * 4 + column] = first * b.at(0, column) + second * b.at(1, column) +
                                         third * b.at(2, column) + fourth * b.at(3, column);
        }
    }
    return TransformMatrix(elements);
}

/// Whether products of four such numbers are far from overflow and underflow.
bool isOfCommonSize(double number)
{
    double const size = std::fabs(number);
    return size == 0 || (size > 1e-60 && size < 1e60);
}

/// A row of a matrix, and beside it the same row of its inverse in the making.
using RowPair = std::array<double, 8>;

void addTo(RowPair& row, RowPair const& added, double factor)
{
    for (std::size_t i = 0; i < row.size(); ++i)
        row[i] += factor * added[i];
}

/// Of the row with the largest element in `column`, at or below the diagonal.
std::size_t pivotRow(RowPair const* rows, std::size_t column)
{
    std::size_t best = column;
    for (std::size_t row = column + 1; row < 4; ++row) {
        if (std::fabs(rows[row][column]) > std::fabs(rows[best][column]))
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
    if (std::all_of(m_elements, m_elements + 16, isOfCommonSize))
        return determinant() == 0;
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
    RowPair rows[4] = {};
    for (std::size_t row = 0; row < 4; ++row) {
        std::copy_n(m_elements + row * 4, 4, rows[row].begin());
        rows[row][4 + row] = 1;
    }
    for (std::size_t column = 0; column < 4; ++column) {
        std::size_t const pivot = pivotRow(rows, column);
        RowPair scaled = rows[pivot];
        rows[pivot] = rows[column];
        double const factor = 1.0 / scaled[column];
        for (double& element : scaled)
            element *= factor;
        rows[column] = scaled;
        for (std::size_t row = 0; row < 4; ++row) {
            if (row != column)
                addTo(rows[row], scaled, -rows[row][column]);
        }
    }
    TransformMatrix result;
    for (std::size_t row = 0; row < 4; ++row)
        std::copy_n(rows[row].begin() + 4, 4, result.m_elements + row * 4);
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
