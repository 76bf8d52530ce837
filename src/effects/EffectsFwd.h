#pragma once

#include <boost/shared_ptr.hpp>

#include <utility>

namespace tarn {

class Effect;
class Effectable;
class EffectDef;
class EffectLibrary;
class EffectTimeConverter;
class FilterCatalogue;
class GenericEffect;
class VectorEffectable;

/// An effect taken off its owner, with the index it had there.
using RemovedEffect = std::pair<boost::shared_ptr<Effect>, int>;

}  // namespace tarn
