#pragma once

namespace tarn {

class ClipBoard;
class Clipping;
class MediaFileStats;
class Movie;
class MovieFramework;
class MovieTrack;
class QTStatsLoader;
class Source;
class SourceBin;
class SourceBinSentry;
class StatsLoader;

}  // namespace tarn
