#pragma once

#include "datatypes/ReservedIdent.h"

#include <regex>
#include <string>
#include <vector>

namespace tarn {
namespace test {

/// While it lives, idents are drawn as in a new process, but from first() on: it holds all that
/// were given back before.
class FreshIdents
{
public:
    FreshIdents()
    {
        // Fresh numbers follow one another. So may some that were given back, but not so many.
        unsigned int highest = 0;
        int inARow = 0;
        while (inARow < 10000) {
            m_held.push_back(ReservedIdent::draw());
            unsigned int const ident = m_held.back().ident();
            inARow = ident == highest + 1 ? inARow + 1 : 0;
            highest = ident > highest ? ident : highest;
        }
        m_first = highest + 1;
    }

    unsigned int first() const { return m_first; }

    /// The XML with every identity number counted from first().
    std::string relative(std::string const& xml) const
    {
        static std::regex const k_id("id=\"([0-9]+)\"");
        std::string result;
        std::string::const_iterator done = xml.begin();
        for (std::sregex_iterator id(xml.begin(), xml.end(), k_id), end; id != end; ++id) {
            result.append(done, (*id)[1].first);
            result += std::to_string(std::stol((*id)[1].str()) - static_cast<long>(m_first));
            done = (*id)[1].second;
        }
        return result.append(done, xml.end());
    }

private:
    std::vector<ReservedIdent> m_held;
    unsigned int m_first;
};

}  // namespace test
}  // namespace tarn
