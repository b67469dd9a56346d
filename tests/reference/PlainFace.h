#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace orvanta::testing {

// The plain reading of the faces and borders, which shares nothing with the drawing code. Colours are plain 0x00BBGGRR
// values; style is 0 to 8; border and out are never automatic.

// What a face is made of. Right and bottom are exclusive.
class PlainSurface {
public:
    virtual void Set(int x, int y, std::int32_t c) = 0;
    virtual void Fill(int x1, int y1, int x2, int y2, std::int32_t c) = 0;
    virtual void Frame(int x1, int y1, int x2, int y2, std::int32_t c) = 0;
    // A width (height) of 0 is one column (row).
    virtual void BandDown(int x1, int y1, int x2, int y2, std::int32_t from, std::int32_t to) = 0;
    virtual void BandRight(int x1, int y1, int x2, int y2, std::int32_t from, std::int32_t to) = 0;

protected:
    ~PlainSurface() = default;
};

// An array of pixels, changed one at a time.
class PlainPicture final : public PlainSurface {
public:
    PlainPicture(int width, int height, std::int32_t c)
        : m_width(width), m_height(height),
          m_pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), c) {}

    // Pixels outside are not there.
    void Set(int x, int y, std::int32_t c) override;
    void Fill(int x1, int y1, int x2, int y2, std::int32_t c) override;
    void Frame(int x1, int y1, int x2, int y2, std::int32_t c) override;
    void BandDown(int x1, int y1, int x2, int y2, std::int32_t from, std::int32_t to) override;
    void BandRight(int x1, int y1, int x2, int y2, std::int32_t from, std::int32_t to) override;

    const std::vector<std::int32_t>& Pixels() const { return m_pixels; }

private:
    int m_width;
    int m_height;
    std::vector<std::int32_t> m_pixels;
};

// The colours of the n rows of a band.
std::vector<std::int32_t> PlainBand(std::int32_t from, std::int32_t to, int n);
std::int32_t PlainMix(std::int32_t a, std::int32_t b, int p);
std::int32_t PlainShade(std::int32_t c, int d);
int PlainLuma(std::int32_t c);

struct PlainBox {
    int left;
    int top;
    int right;
    int bottom;
};

// Calls its argument with every pixel of the outline of a round rectangle with corner size 4 in a box: how the platform
// draws it is not ours to say.
using RoundOutline = std::function<void(const PlainBox&, const std::function<void(int, int)>&)>;

struct PlainFaceForm {
    std::int32_t back;
    bool bBorder;
    std::int32_t border;
    bool bPressed;
    bool bDefault;
    bool bCancel;
    bool bRounded;
    int style;
    std::int32_t out;
    bool bAdapt;
};
void PlainFace(PlainSurface& surface, const PlainBox& box, const PlainFaceForm& form, const RoundOutline& outline);

void PlainBoxBorder(PlainSurface& surface, const PlainBox& box, std::int32_t back, std::int32_t border, bool bRounded,
                    std::int32_t out, bool bBottomOnly, const RoundOutline& outline);

} // namespace orvanta::testing
