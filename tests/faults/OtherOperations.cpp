// The table's second half: what is no command.

#include "faults/FaultStage.h"
#include "faults/Operation.h"

#include <sstream>

namespace tarn {
namespace test {

std::vector<Operation> otherOperations()
{
    std::vector<Operation> result;
    Operation print;
    print.name = "print XML";
    print.strip = "A1: aa / V1: aa";
    print.run = [](FaultStage& s) {
        std::ostringstream out;
        out.exceptions(std::ios::badbit);
        s.project->toXML(out);
    };
    result.push_back(print);
    return result;
}

}  // namespace test
}  // namespace tarn
