#pragma once

#include "commands/CommandsFwd.h"
#include "exceptions/KeyFrameException.h"
#include "exceptions/TarnMediaLibException.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/KeyFrame.h"
#include "parameters/LeftInterpolater.h"
#include "parameters/LeftParameter.h"
#include "parameters/LinearInterpolater.h"
#include "parameters/XmlValue.h"
#include "support/CountingObserver.h"
#include "support/ModelTest.h"
#include "timeline/VisualMedia.h"

#include <boost/pointer_cast.hpp>

#include <sstream>
#include <string>

namespace tarn {
namespace test {

/// The fixture of edits of key frames: one video, whose opacity has the key frame "0=1".
///
/// A parameter is written as a line: "0=1 30=0.4", each key frame by its time and value.
class ParameterEditTest : public ModelTest
{
protected:
    ParameterEditTest()
    {
        given("V1: aaaaaaaaaa");
        opacity = boost::dynamic_pointer_cast<VisualMedia>(media("V1.a"))->opacity();
    }

    template <class T>
    static std::string line(Parameter<T> const& parameter)
    {
        std::ostringstream out;
        char const* separator = "";
        auto const times = parameter.keyframeTimes();
        for (long long time : *times) {
            out << separator << time << '=' << xml_representation(*parameter.keyframeAtTime(time));
            separator = " ";
        }
        return out.str();
    }

    /// As edits(), where the parameter's line must be `expected` after each run of the command, and
    /// what it was after each undo.
    template <class T>
    ::testing::AssertionResult editsKeys(boost::shared_ptr<Command> const& command,
                                         Parameter<T> const& parameter, std::string const& expected)
    {
        std::string const before = line(parameter);
        ::testing::AssertionResult const edited = edits(command);
        if (!edited)
            return edited;
        std::string const after = line(parameter);
        project->undo();
        std::string const undone = line(parameter);
        project->redo();
        std::string const redone = line(parameter);
        if (after == expected && undone == before && redone == expected)
            return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure()
               << "from " << before << "\nto   " << after << "\nback " << undone << "\nredo "
               << redone << "\nand not " << expected;
    }

    /// Runs the second as a step of the drag that the first began.
    void drag(boost::shared_ptr<Command> const& first, boost::shared_ptr<Command> const& second)
    {
        project->execute(first);
        project->combineNextCommand();
        project->execute(second);
    }

    /// How many steps undo has.
    std::size_t numSteps() const
    {
        std::size_t steps = 0;
        while (project->commandState().undoTop()) {
            project->undo();
            ++steps;
        }
        for (std::size_t i = 0; i < steps; ++i)
            project->redo();
        return steps;
    }

    boost::shared_ptr<InterpolatingParam<double>> opacity;
};

}  // namespace test
}  // namespace tarn
