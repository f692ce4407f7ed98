#pragma once

namespace zentor {

struct Document;
struct ProcessContext;
class PictureCache;

// Decodes, on every core, the pictures the content pages and the cover will draw, at the
// sizes they are drawn, into `cache`; painting a PDF is one thread, decoding need not be.
// Returns when all are there. What it misses is only decoded later, while painting.
void PrefetchPictures(const Document& doc, const ProcessContext& ctx, PictureCache& cache);

} // namespace zentor
