#pragma once

#include <sstream>
#include <string>

namespace tarn::drawing {

/// An SVG picture that is written shape by shape.
class Svg
{
public:
    Svg(double width, double height, std::string const& background);

    void rect(double x, double y, double width, double height, std::string const& style,
              double radius = 0);
    void line(double x1, double y1, double x2, double y2, std::string const& style);
    void polygon(std::string const& points, std::string const& style);
    void circle(double x, double y, double radius, std::string const& style);
    void text(double x, double y, std::string const& words, std::string const& style);

    void writeTo(std::ostream& out) const;
    /// @returns whether the file could be written
    bool writeTo(std::string const& path) const;

private:
    std::ostringstream m_body;
};

}  // namespace tarn::drawing
