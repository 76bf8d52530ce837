#pragma once

#include "fuzz/Step.h"

#include <boost/shared_ptr.hpp>

#include <map>
#include <string>
#include <vector>

namespace tarn {
class Media;
class Track;

namespace test {

struct MadeCommand;
class Stage;

/// A second model, as simple as can be: for each track a plain list of intervals, searched from end
/// to end. It carries out the placement commands by itself, so that collisions and ranges are
/// reckoned twice, by code that has nothing in common.
class NaiveModel
{
public:
    enum class Outcome
    {
        Done,
        Collides,
        Refused,  ///< for another reason
        Unknown   ///< numbers so large, or groups so far apart, that it does not say
    };

    /// Whether it carries out that command itself.
    static bool knows(Op op);

    /// Forgets everything and copies the library's model.
    void copy(Stage const& stage);
    Outcome run(Op op, MadeCommand const& command);
    /// What is not as in the library's model; empty when all is.
    std::string difference(Stage const& stage) const;

private:
    /// A media as an interval, with what bounds its edits.
    struct Interval
    {
        Track const* track;
        long long start;
        long long length;
        bool isStill;
        double mediaStart;
        double mediaLength;
        double scalar;
        double lowest;
        double highest;
        std::vector<Media const*> links;
    };

    Outcome add(MadeCommand const& command);
    Outcome remove(Media const* media);
    Outcome move(Interval& edited, long long by);
    Outcome trimStart(Interval& edited, long long by);
    Outcome trimEnd(Interval& edited, long long by);
    Outcome stretch(Interval& edited, double scalar);

    static Interval intervalOf(Media const& media, Track const* track);
    static bool trimIsValid(Interval const& edited, long long length);
    static bool trimStartOf(Interval& edited, long long by);
    static bool trimEndOf(Interval& edited, long long by);
    static double scalarFor(Interval const& edited, double requested);
    static bool stretchOf(Interval& edited, double requested);

    std::vector<Interval*> groupOf(Interval& edited);
    bool isKnownGroup(std::vector<Interval*> const& group) const;
    /// Whether any of the group would lie over another media of its track.
    bool collides(std::vector<Interval*> const& group, long long start, long long length) const;
    bool startIsTaken(std::vector<Interval*> const& group, long long start) const;

    std::map<Media const*, Interval> m_intervals;
};

}  // namespace test
}  // namespace tarn
