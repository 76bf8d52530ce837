#pragma once

#include "script/Lexer.h"

#include <map>
#include <string>
#include <vector>

namespace tarn::tool {

struct Verb;

/// One line of a script, checked against its verb's syntax.
///
/// A word goes by the keyword before it ("at" for `at 30`) or, without one, by its placeholder in
/// the syntax ("MEDIA"). A keyword that stands alone is there without words.
class Statement
{
public:
    enum class Prefix
    {
        None,
        Combine,  ///< one step with the edit before
        Refuse    ///< the edit must be refused
    };

    Statement(Verb const& verb, Place const& place, Prefix prefix)
        : m_verb(&verb), m_place(place), m_prefix(prefix)
    {}

    Verb const& verb() const { return *m_verb; }
    Place const& place() const { return m_place; }
    Prefix prefix() const { return m_prefix; }

    void add(std::string const& key) { m_words[key]; }
    void add(std::string const& key, Word const& word) { m_words[key].push_back(word); }

    bool has(std::string const& key) const { return m_words.count(key) != 0; }
    /// The first word of that key, which must be there.
    Word const& word(std::string const& key) const { return m_words.at(key).front(); }
    std::vector<Word> const& words(std::string const& key) const { return m_words.at(key); }

private:
    Verb const* m_verb;
    Place m_place;
    Prefix m_prefix;
    std::map<std::string, std::vector<Word>> m_words;
};

}  // namespace tarn::tool
