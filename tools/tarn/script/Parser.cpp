#include "script/Parser.h"

#include "Similar.h"
#include "script/NameTable.h"
#include "script/ScriptError.h"
#include "script/SyntaxMatcher.h"
#include "script/Values.h"
#include "script/Verb.h"

#include <istream>
#include <string>

namespace tarn::tool {

namespace {

class Parser
{
public:
    Script parse(std::istream& text)
    {
        std::string line;
        for (int number = 1; std::getline(text, line); ++number)
            parseLine(number == 1 ? withoutMark(line) : line, number);
        return std::move(m_script);
    }

private:
    /// Some editors begin a file with a mark of its encoding.
    static std::string withoutMark(std::string const& line)
    {
        std::string const k_mark = "\xEF\xBB\xBF";
        return line.compare(0, k_mark.size(), k_mark) == 0 ? line.substr(k_mark.size()) : line;
    }

    void parseLine(std::string const& text, int number)
    {
        Line line;
        try {
            line = wordsOf(text, number);
            if (!line.words.empty())
                parseStatement(line);
        } catch (ScriptError const& error) {
            m_script.complaints.push_back({error.place(), error.what()});
            m_isFirst = false;
        }
        noteNames(line);
    }

    void parseStatement(Line const& line)
    {
        Statement::Prefix const prefix = prefixOf(line.words.front());
        std::size_t const first = prefix == Statement::Prefix::None ? 0 : 1;
        Verb const& verb = verbAt(line, first);
        if (prefix != Statement::Prefix::None && !verb.edit)
            throw ScriptError(line.words[first].place, "'" + line.words.front().text +
                                                           "' takes an edit, and '" + verb.name() +
                                                           "' is none");
        if (verb.name() == "project" && !m_isFirst)
            throw ScriptError(line.words[first].place, "'project' must be the first command");
        m_isFirst = false;
        Statement statement(verb, line.words.front().place, prefix);
        SyntaxMatcher(line, first, m_names, statement).match(syntaxOf(verb.syntax));
        m_script.statements.push_back(statement);
    }

    static Statement::Prefix prefixOf(Word const& word)
    {
        if (word.text == "combine")
            return Statement::Prefix::Combine;
        return word.text == "refuse" ? Statement::Prefix::Refuse : Statement::Prefix::None;
    }

    static Verb const& verbAt(Line const& line, std::size_t index)
    {
        if (index == line.words.size())
            throw ScriptError(line.end, "expected an edit, found the end of the line");
        Word const& word = line.words[index];
        Verb const* const verb = findVerb(word.text);
        if (verb && (verb->edit || verb->act))
            return *verb;
        std::vector<std::string> names;
        for (Verb const& known : verbTable())
            names.push_back(known.name());
        std::string const problem = verb ? "expected an edit, found" : "unknown command";
        throw ScriptError(word.place, problem + " '" + word.text + "'" +
                                          (verb ? "" : didYouMean(word.text, names)));
    }

    // Also of a line with an error, so that it does not bring one of each line that uses the name.
    // What must be refused gives no names.
    void noteNames(Line const& line)
    {
        if (line.words.size() < 3 || line.words.front().text == "refuse")
            return;
        std::string const& verb =
            line.words[prefixOf(line.words.front()) == Statement::Prefix::None ? 0 : 1].text;
        for (std::size_t i = 1; i + 1 < line.words.size(); ++i)
            if (!line.words[i].isQuoted && line.words[i].text == "as")
                noteName(line.words[i + 1], verb);
    }

    void noteName(Word const& word, std::string const& verb)
    {
        if (word.isQuoted || !isName(word.text) || m_names.find(word.text))
            return;
        m_names.add(word.text, kindOfNameGivenBy(verb), word.place.line);
    }

    static NameTable::Kind kindOfNameGivenBy(std::string const& verb)
    {
        Verb const* const known = findVerb(verb);
        if (known && known->syntax.find("FILE-NAME") != std::string::npos)
            return NameTable::Kind::Source;
        if (known && known->syntax.find("CLIP-NAME") != std::string::npos)
            return NameTable::Kind::Clip;
        return NameTable::Kind::Media;
    }

    Script m_script;
    NameTable m_names;
    bool m_isFirst = true;
};

}  // namespace

Script parseScript(std::istream& text)
{
    return Parser().parse(text);
}

}  // namespace tarn::tool
