#pragma once

#include <string>

struct AVInputFormat;

namespace tarn {

class RegularFile;

/// Tells a media file's container by its head alone; no demuxer runs.
namespace FFmpegProbe {

/// The demuxer for the file; null if it is text, or of no container that the library reads.
/// @param name the file's name, whose extension lends weight to a weak guess
AVInputFormat const* inputFormat(RegularFile const& file, std::string const& name);

/// Whether the demuxer reads files that are one picture.
bool isPictureFormat(AVInputFormat const* format);
/// Whether the demuxer is of the family of QuickTime and MPEG-4 files.
bool isMovFormat(AVInputFormat const* format);
bool isMatroskaFormat(AVInputFormat const* format);

}  // namespace FFmpegProbe

}  // namespace tarn
