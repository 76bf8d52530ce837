#pragma once

namespace tarn {

class Attributable;
class ConstParameterDispatcher;
class Parametric;
class ParameterDispatcher;
class ParameterInterface;
class VectorParam;

template <class T>
class Attribute;
template <class T>
class InterpolatingParam;
template <class T>
class Interpolater;
template <class T>
class KeyFrame;
template <class T>
class LeftInterpolater;
template <class T>
class LeftParameter;
template <class T>
class LinearInterpolater;
template <class T>
class MTVector;
template <class T>
class Parameter;
template <class T>
class ParameterImpl;
template <class T>
class ParameterIterator;

}  // namespace tarn
