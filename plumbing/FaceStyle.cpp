#include "plumbing/FaceStyle.h"

#include <optional>

namespace orvanta {

namespace {

std::optional<std::int32_t> g_lFaceStyle;

} // namespace

std::int32_t DefaultFaceStyle() {
    return g_lFaceStyle.value_or(3);
}

void DefaultFaceStyle(std::int32_t lFaceStyle) {
    g_lFaceStyle = lFaceStyle;
}

void ClearDefaultFaceStyle() {
    g_lFaceStyle.reset();
}

std::int32_t ResolveFaceStyle(std::int32_t style) {
    return style == -1 ? DefaultFaceStyle() : style;
}

} // namespace orvanta
