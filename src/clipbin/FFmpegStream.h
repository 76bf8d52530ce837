#pragma once

#include "clipbin/MovieSize.h"
#include "clipbin/MovieTrack.h"

#include <optional>
#include <string>

struct AVFormatContext;
struct AVStream;

namespace tarn {

class IsoBoxes;

/// What the head of a file tells of one of its streams.
namespace FFmpegStream {

/// The four characters of the stream's kind; empty for what is no track, such as an attachment,
/// cover art, a chapter's picture, or pictures without a sensible size.
std::string mediaType(AVStream const& stream);

/// The size of a stream's pictures as they are meant to be seen: cut to the clean aperture, with
/// square pixels, turned upright.
/// @param boxes the file's boxes if it has any, else null
MovieSize cleanApertureSize(AVFormatContext& context, AVStream& stream, IsoBoxes const* boxes);

bool hasSampleDescription(AVStream const& stream);
std::optional<MovieTrack::SoundFormat> soundFormat(AVStream const& stream);

}  // namespace FFmpegStream

}  // namespace tarn
