#pragma once

namespace tarn {

class AbstractIMFile;
class AbstractVisualTrack;
class AMFile;
class AudioMedia;
class AudioMixer;
class AudioTrack;
class AudioTransition;
class Callout;
class ConstMediaDispatcher;
class ConstTrackDispatcher;
class ImageMedia;
class ImageTrack;
class ImageTransition;
class IMFile;
class Media;
class MediaDispatcher;
class MediaEditor;
class MediaImpl;
class Mixer;
class SubTimeline;
class Temporal;
class TextBox;
class Timeline;
class Track;
class TrackDispatcher;
class Transition;
class VideoMedia;
class VisualFileMedia;
class VisualMedia;
class VisualMixer;
class VisualTrack;
class VMFile;

template <class T>
class Pair;
template <class M>
class TrackSubSection;

}  // namespace tarn
