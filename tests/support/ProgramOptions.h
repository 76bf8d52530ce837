#pragma once

#include <functional>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>

namespace tarn {
namespace test {

/// The options of a test program, as "--seed 5 --ops".
class ProgramOptions
{
public:
    using Taker = std::function<void(std::string const& value)>;

    /// An option without a value.
    void addFlag(std::string const& name, bool& target) { m_flags[name] = &target; }
    /// An option whose value is taken as it stands.
    void add(std::string const& name, Taker const& taker) { m_takers[name] = taker; }
    void add(std::string const& name, std::string& target)
    {
        add(name, [&target](std::string const& value) { target = value; });
    }
    /// An option whose value is read into `target`, which keeps what it holds when the option is
    /// not given. Every target must outlive read().
    template <class T>
    void add(std::string const& name, T& target)
    {
        add(name, [name, &target](std::string const& value) {
            std::istringstream in(value);
            if (!(in >> target) || !in.eof())
                throw std::invalid_argument("not a value of " + name + ": " + value);
        });
    }

    /// @throws std::invalid_argument for an option that nobody added, and one that lacks its value
    void read(int argc, char** argv) const
    {
        for (int i = 1; i < argc; ++i) {
            std::string const name = argv[i];
            auto const flag = m_flags.find(name);
            if (flag != m_flags.end()) {
                *flag->second = true;
                continue;
            }
            auto const taker = m_takers.find(name);
            if (taker == m_takers.end())
                throw std::invalid_argument("no option: " + name);
            if (++i == argc)
                throw std::invalid_argument("an option without a value: " + name);
            taker->second(argv[i]);
        }
    }

private:
    std::map<std::string, bool*> m_flags;
    std::map<std::string, Taker> m_takers;
};

}  // namespace test
}  // namespace tarn
