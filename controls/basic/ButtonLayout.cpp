#include "controls/basic/ButtonLayout.h"

#include "base/Rounding.h"

#include <algorithm>

namespace orvanta {

namespace {

// Between picture and text.
constexpr std::int32_t kGap = 3;

std::int32_t Half(std::int32_t l) {
    return RoundToInteger<std::int32_t>(l / 2.0);
}

// One layout at work. The steps of each layout depend on each other, so their order matters.
class Arrangement {
public:
    Arrangement(const ButtonContent& content, const CaptionMeasure& measure)
        : W(content.face.width), H(content.face.height), M(content.margin), IW(content.picture->width),
          IH(content.picture->height), m_measure(measure) {}

    ButtonParts Of(std::int32_t ImagePos) {
        switch (ImagePos) {
        case 0: PictureOverText(); break;
        case 1: PictureLeftOfText(); break;
        case 2: TextLeftOfPicture(); break;
        case 3: TextOverPicture(); break;
        case 4: TextOnPicture(); break;
        case 5: PictureAtTop(); break;
        case 6: PictureAtLeft(kGap); break;
        case 7: PictureAtRight(kGap); break;
        case 8: PictureAtBottom(); break;
        case 10: PictureAtLeft(0); break;
        case 11: PictureAtRight(0); break;
        default: break;
        }
        return m_parts;
    }

private:
    void MeasureUpTo(std::int32_t right) {
        const PixelSize size = m_measure({M, M, right, H - M});
        TW = size.width;
        TH = size.height;
    }
    void MeasureBeside(std::int32_t gap) { MeasureUpTo(std::max(W - M - IW - gap, Half(IW))); }

    // The first of two centred in a row or a column.
    std::int32_t Leading(std::int32_t extent, std::int32_t first, std::int32_t second) const {
        return std::max(M, Half(extent - (first + kGap + second)));
    }

    void PictureRow(std::int32_t top) { m_parts.picture = {0, top, W, top + IH}; }
    void PictureColumn(std::int32_t left) { m_parts.picture = {left, 0, left + IW, H}; }
    void TextRow(std::int32_t top) { m_parts.text = {M, top, W - M, top + TH}; }
    void TextColumn(std::int32_t left, std::int32_t right) {
        const std::int32_t top = Half(H - TH);
        m_parts.text = {left, top, right, top + TH};
    }

    void PictureOverText() {
        MeasureUpTo(W - M);
        PictureRow(Leading(H, IH, TH));
        TextRow(std::min(H - M - TH, m_parts.picture.bottom + kGap));
    }
    void TextOverPicture() {
        MeasureUpTo(W - M);
        TextRow(Leading(H, IH, TH));
        PictureRow(std::min(H - M - IH, m_parts.text.bottom + kGap));
    }
    void PictureLeftOfText() {
        MeasureBeside(kGap);
        PictureColumn(Leading(W, IW, TW));
        const std::int32_t left = std::min(W - M - TW, m_parts.picture.right + kGap);
        TextColumn(left, left + TW);
    }
    void TextLeftOfPicture() {
        MeasureBeside(kGap);
        const std::int32_t left = Leading(W, IW, TW);
        TextColumn(left, left + TW);
        PictureColumn(std::min(W - M - IW, m_parts.text.right + kGap));
    }
    void TextOnPicture() {
        MeasureUpTo(W - M);
        m_parts.picture = {0, 0, W, H};
        TextColumn(M, W - M);
    }
    void PictureAtTop() {
        MeasureUpTo(W - M);
        PictureRow(M);
        TextRow(std::min(H - M - TH, m_parts.picture.bottom + kGap));
    }
    void PictureAtBottom() {
        MeasureUpTo(W - M);
        PictureRow(H - M - IH);
        TextRow(std::max(M, m_parts.picture.top - kGap - TH));
    }
    void PictureAtLeft(std::int32_t gap) {
        MeasureBeside(gap);
        PictureColumn(M);
        TextColumn(std::min(W - M - TW, m_parts.picture.right + kGap), W - M);
    }
    void PictureAtRight(std::int32_t gap) {
        MeasureBeside(gap);
        PictureColumn(std::max(W - M - IW, M));
        TextColumn(M, std::max(m_parts.picture.left - kGap, TW));
    }

    const std::int32_t W, H, M, IW, IH;
    const CaptionMeasure& m_measure;
    std::int32_t TW = 0, TH = 0;
    ButtonParts m_parts;
};

} // namespace

ButtonParts LayOutButton(const ButtonContent& content, std::int32_t ImagePos, const CaptionMeasure& measure) {
    const auto [W, H] = content.face;
    ButtonParts parts;
    if (content.picture && content.bCaption) {
        parts = Arrangement(content, measure).Of(ImagePos);
    } else if (content.picture) {
        parts.picture = {0, 0, W, H};
    } else if (content.bCaption) {
        parts.text = {1, 1, W - 1, H - 1};
        parts.text.top = Half(H - measure(parts.text).height);
    }
    return parts;
}

std::optional<PixelSize> FittedPictureSize(PixelSize face, std::int32_t margin, PixelSize picture) {
    const std::int32_t width = face.width - 2 * margin;
    const std::int32_t height = face.height - 2 * margin;
    if (picture.width < width && picture.height < height) return std::nullopt;
    if (picture.width < 1 || picture.height < 1) return std::nullopt;
    const double dFactor =
        std::min(static_cast<double>(width) / picture.width, static_cast<double>(height) / picture.height);
    const PixelSize target{RoundToInteger<std::int32_t>(dFactor * picture.width),
                           RoundToInteger<std::int32_t>(dFactor * picture.height)};
    if (target.width < 1 || target.height < 1) return std::nullopt;
    return target;
}

} // namespace orvanta
