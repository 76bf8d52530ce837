#pragma once

namespace tarn {

class AudioPosition;
class Color;
class EncodingConverter;
class FileRepresentation;
class Identified;
class IdentManager;
class MediaObserver;
class NotifyDelay;
class Observable;
class Observer;
class ObserverList;
class Point;
class Quad;
class ReservedIdent;
class ScreenMetaData;
class ScreenMetaDataLoader;
class Subject;
class TarnObject;
class Transformer;
class TransformMatrix;
class UpdateCollector;
class XMLable;
class XMLIdentified;

template <class T>
class Range;
template <class T>
class Rect;

}  // namespace tarn
