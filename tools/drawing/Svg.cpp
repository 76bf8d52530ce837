#include "drawing/Svg.h"

#include "drawing/Utf8.h"

#include <fstream>

namespace tarn::drawing {

namespace {

std::string escaped(char letter)
{
    switch (letter) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    default:
        // XML has no control characters, not even escaped ones.
        return static_cast<unsigned char>(letter) < 0x20 ? " " : std::string(1, letter);
    }
}

std::string escaped(std::string const& words)
{
    std::string text;
    for (std::size_t i = 0; i < words.size();) {
        std::size_t const length = characterLength(words, i);
        if (length == 0)
            text += k_replacement;
        else
            text += length == 1 ? escaped(words[i]) : words.substr(i, length);
        i += length == 0 ? 1 : length;
    }
    return text;
}

}  // namespace

Svg::Svg(double width, double height, std::string const& background)
{
    m_body << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << width << "\" height=\""
           << height << "\" font-family=\"sans-serif\" font-size=\"12\">\n";
    rect(0, 0, width, height, "fill:" + background);
}

void Svg::rect(double x, double y, double width, double height, std::string const& style,
               double radius)
{
    m_body << "<rect x=\"" << x << "\" y=\"" << y << "\" width=\"" << width << "\" height=\""
           << height << "\" rx=\"" << radius << "\" style=\"" << style << "\"/>\n";
}

void Svg::line(double x1, double y1, double x2, double y2, std::string const& style)
{
    m_body << "<line x1=\"" << x1 << "\" y1=\"" << y1 << "\" x2=\"" << x2 << "\" y2=\"" << y2
           << "\" style=\"" << style << "\"/>\n";
}

void Svg::polygon(std::string const& points, std::string const& style)
{
    m_body << "<polygon points=\"" << points << "\" style=\"" << style << "\"/>\n";
}

void Svg::circle(double x, double y, double radius, std::string const& style)
{
    m_body << "<circle cx=\"" << x << "\" cy=\"" << y << "\" r=\"" << radius << "\" style=\""
           << style << "\"/>\n";
}

void Svg::text(double x, double y, std::string const& words, std::string const& style)
{
    m_body << "<text x=\"" << x << "\" y=\"" << y << "\" style=\"" << style << "\">"
           << escaped(words) << "</text>\n";
}

void Svg::writeTo(std::ostream& out) const
{
    out << m_body.str() << "</svg>\n";
}

bool Svg::writeTo(std::string const& path) const
{
    std::ofstream file(path);
    writeTo(file);
    file.close();
    return static_cast<bool>(file);
}

}  // namespace tarn::drawing
