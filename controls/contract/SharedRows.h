#pragma once

#include "controls/contract/Control.h"
#include "controls/contract/ObjectValues.h"
#include "controls/contract/PropertyTable.h"

#include <cstdint>
#include <string>

namespace orvanta {

// The rows that most tables have, for values that the host or Control holds. Loading puts the value on the host alone;
// setting by name calls the setter that ControlType has under that name.
template<typename ControlType>
struct SharedRows {
    using Row = typename PropertyTable<ControlType>::Row;

    static Row Enabled() {
        return Held<bool>(
            u"Enabled", true, [](const ControlType& c) { return c.Host().Enabled(); },
            [](ControlType& c, bool b) { c.Host().Enabled(b); }, [](ControlType& c, bool b) { c.Enabled(b); });
    }
    // The default is the ambient font; a load gives the control a font of its own.
    static Row Font() {
        Row row = Held<OleFont>(
            u"Font", {}, [](const ControlType& c) { return c.Host().Font(); },
            [](ControlType& c, const OleFont& font) { c.Host().Font(font); },
            [](ControlType& c, const OleFont& font) { c.Font(font); });
        row.defaultOf = [](const ControlType& c) { return PropertyKind<OleFont>::Make(c.Host().Ambient().Font()); };
        return row;
    }
    static Row Tip() {
        return Held<std::u16string>(
            u"Tip", {}, [](const ControlType& c) { return c.Tip(); },
            [](ControlType& c, std::u16string s) { static_cast<Control&>(c).m_sTip = std::move(s); },
            [](ControlType& c, std::u16string s) { c.Tip(std::move(s)); });
    }
    static Row OLEDropMode() {
        return Held<std::int16_t>(
            u"OLEDropMode", 0, [](const ControlType& c) { return c.Host().OLEDropMode(); },
            [](ControlType& c, std::int16_t i) { c.Host().OLEDropMode(i); },
            [](ControlType& c, std::int16_t i) { c.OLEDropMode(i); });
    }
    static Row MousePointer() {
        return Held<std::int16_t>(
            u"MousePointer", 0, [](const ControlType& c) { return c.Host().MousePointer(); },
            [](ControlType& c, std::int16_t i) { c.Host().MousePointer(i); },
            [](ControlType& c, std::int16_t i) { c.MousePointer(i); });
    }
    static Row MouseIcon() {
        return Held<OlePicture>(
            u"MouseIcon", {}, [](const ControlType& c) { return c.Host().MouseIcon(); },
            [](ControlType& c, const OlePicture& picture) { c.Host().MouseIcon(picture); },
            [](ControlType& c, const OlePicture& picture) { c.MouseIcon(picture); });
    }

    // A row for any value that is no field of the control: three small functions.
    template<typename T, typename Get, typename Load, typename Set>
    static Row Held(std::u16string_view sKey, T defaultValue, Get get, Load load, Set set) {
        Row row;
        row.sKey = sKey;
        row.defaultOf = [value = PropertyKind<T>::Make(defaultValue)](const ControlType&) { return value; };
        row.get = [get](const ControlType& c) { return PropertyKind<T>::Make(get(c)); };
        row.load = [load](ControlType& c, const PropertyValue& value) { load(c, PropertyKind<T>::Take(value)); };
        row.set = [set](ControlType& c, const PropertyValue& value) { set(c, PropertyKind<T>::Take(value)); };
        return row;
    }
};

} // namespace orvanta
