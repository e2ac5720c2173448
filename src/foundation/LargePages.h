#pragma once

#include <cstddef>

namespace brellowind {

/// Asks the system to give the untouched memory from `begin` on large pages where it has some: a
/// page that is a few hundred times as large is cleared and found about as often less. For buffers
/// of many megabytes; a smaller one is left alone, and so is everything on systems that take no
/// such advice. The beginning stays on small pages, since little of a buffer may come to be used.
void preferLargePages(void* begin, std::size_t bytes);

} // namespace brellowind
