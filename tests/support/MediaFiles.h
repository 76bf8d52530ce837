#pragma once

#include <string>

namespace tarn {
namespace test {

/// Small media files, made by the ffmpeg program when a test first asks for them, in a folder that
/// goes with the process.
namespace MediaFiles {

/// The folder, without a slash at its end.
std::string const& folder();

/// The path of the file of that name in the folder, made as
///     ffmpeg ARGUMENTS FILE
/// at the first call for the name. The arguments are those of a shell's line, and `@name` in them
/// is the path of another file of the folder.
/// @throws std::runtime_error ffmpeg failed
std::string made(std::string const& name, std::string const& arguments);

/// A moving test picture of 64 x 48 and that many frames, as arguments for ffmpeg.
std::string picture(int frames, std::string const& rate);
/// A tone of 48,000 Hz, one channel.
std::string tone(int seconds);

/// The path of a new file of that name and content.
std::string written(std::string const& name, std::string const& content);
std::string content(std::string const& path);

}  // namespace MediaFiles

}  // namespace test
}  // namespace tarn
