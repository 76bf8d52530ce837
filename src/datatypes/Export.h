#pragma once

/// Marks what a host may name, cast to or catch: the library hides every other symbol.
///
/// Class templates carry it too, so that their type information is one object in the whole process
/// and casts and catches work across the library's boundary.
#define TARN_API __attribute__((visibility("default")))
