#pragma once

#include "parameters/ParametersFwd.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>

namespace tarn {
namespace test {

class Judge;
class Stage;
class WriterCount;

/// What readers did, all together.
struct ReaderFigures
{
    std::atomic<std::size_t> values{0};  ///< of parameters
    std::atomic<std::size_t> medias{0};  ///< met by const iterators
    std::atomic<std::size_t> prints{0};  ///< of the whole project as XML
    std::atomic<std::size_t> hitTests{0};
    std::atomic<int> inside{0};  ///< now, at the check of the model
    std::atomic<int> mostInside{0};
};

/// A thread that reads a project in every way, over and over, beside one that edits it.
class ModelReader
{
public:
    /// `number` makes readers begin with different ways.
    ModelReader(Stage const& stage, int number, Judge& judge, WriterCount& writers,
                ReaderFigures& figures)
        : m_stage(stage)
        , m_turn(static_cast<unsigned>(number))
        , m_judge(judge)
        , m_writers(writers)
        , m_figures(figures)
    {}

    void readUntil(std::atomic<bool> const& isOver);

private:
    void readOnce();
    void evaluateParameters();
    double startOf(Media const& media) const;
    void evaluateEffects(Media const& media, double time);
    void iterateMedias();
    void print();
    void hitTest();
    void checkModel();
    void noteInside();
    void evaluate(Parametric const& owner, double time);

    Stage const& m_stage;
    unsigned m_turn;
    Judge& m_judge;
    WriterCount& m_writers;
    ReaderFigures& m_figures;
};

}  // namespace test
}  // namespace tarn
