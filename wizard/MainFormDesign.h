#pragma once

#include <cstdint>
#include <string_view>
#include <variant>
#include <vector>

namespace orvanta {

// The wizard's window as it was designed: the form, its controls, and what each of them loads from its property bag.
// All positions and sizes are in twips (1,440 to the inch), relative to the container.

enum class ControlType : std::uint8_t {
    ctlUniButtonImageXP,
    ctlUniLabel,
    ctlUniFrameXP,
    ctlUniCheckXP,
    ctlUniListBoxExXP,
    ctlUniTextBoxXP,
    ctlUniGrid,
    ctlUniTooltipManager,
};

// dSize in points.
struct FontSetting {
    std::u16string_view sName;
    double dSize;
    bool operator==(const FontSetting&) const = default;
};
// The number of a bitmap among the program's resources.
struct PictureSetting {
    int iResource;
    bool operator==(const PictureSetting&) const = default;
};

// Colours are numbers as a bag stores them: 0x00BBGGRR, or a system colour with the top bit set.
using SettingValue = std::variant<bool, std::int32_t, std::u16string_view, FontSetting, PictureSetting>;

// A key of the control's property bag. What has no setting keeps the default of the bag.
struct DesignSetting {
    std::u16string_view sKey;
    SettingValue value;
};

struct DesignControl {
    static constexpr std::int16_t kNoTabIndex = -1; // takes no focus

    std::u16string_view sName;
    ControlType type;
    std::u16string_view sContainer; // the name of a control that stands earlier; empty for the form
    std::int32_t lLeft, lTop, lWidth, lHeight;
    std::int16_t iTabIndex;
    std::vector<DesignSetting> settings;

    // nullptr for a key without a setting. Keys compare without regard to case.
    const SettingValue* Setting(std::u16string_view sKey) const;
};

struct DesignForm {
    std::u16string_view sCaption;
    std::int32_t lBackColor;
    std::int32_t lScaleWidth, lScaleHeight; // the inner size
    bool bCenteredOnScreen;
    std::vector<DesignControl> controls; // in the order of their creation
};

const DesignForm& MainFormDesign();

} // namespace orvanta
