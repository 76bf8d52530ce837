#pragma once

namespace tarn {

class AuxEdgeModInfo;
class EdgeModFunc;
class EdgeModifiable;
class EdgeModification;

}  // namespace tarn
