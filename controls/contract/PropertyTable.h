#pragma once

#include "base/ResumeNext.h"
#include "base/Text.h"
#include "controls/contract/PropertyBag.h"
#include "controls/contract/PropertyValue.h"

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace orvanta {

// What follows a change of a property, in this order.
enum class After : unsigned {
    Nothing = 0,
    OnlyOnChange = 1, // nothing at all happens when the new value equals the present one
    Notify = 2,       // the container is told that the form has changed
    Shape = 4,        // the window's shape is built anew
    Repaint = 8,
    ShapeAndRepaint = Shape | Repaint,
};
constexpr After operator|(After a, After b) {
    return static_cast<After>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}
constexpr bool Has(After after, After part) {
    return (static_cast<unsigned>(after) & static_cast<unsigned>(part)) != 0;
}

// The one table of a control's persisted properties: loading, saving, defaults, access by name, and what follows a
// change all come from it. The rows stand in the order of the property bag; names compare without regard to case.
//
//     using FooRow = PropertyTable<ctlFoo>;
//     const PropertyTable<ctlFoo> ctlFoo::s_table{
//         FooRow::Field(u"Caption", u"", &ctlFoo::m_sCaption, After::Notify | After::ShapeAndRepaint),
//         FooRow::Field(u"UseRoundRegions", false, &ctlFoo::m_bUseRoundRegions, &ctlFoo::UseRoundRegions),
//         SharedRows<ctlFoo>::Enabled(),
//     };
//     void ctlFoo::Caption(std::u16string s) { Table().Set(*this, &ctlFoo::m_sCaption, std::move(s)); }
//
// A control class needs void AfterChange(std::u16string_view sKey, After after), which does the steps behind a change.
template<typename ControlType>
class PropertyTable {
public:
    struct Row {
        std::u16string_view sKey;
        After after = After::Nothing;
        std::function<PropertyValue(const ControlType&)> defaultOf;
        std::function<PropertyValue(const ControlType&)> get;
        // Stores only, as a load does.
        std::function<void(ControlType&, const PropertyValue&)> load;
        // What the public setter does.
        std::function<void(ControlType&, const PropertyValue&)> set;
        // Where the field of the row stands in a control; none when the value is no field.
        std::function<const void*(const ControlType&)> fieldOf;
    };

    PropertyTable(std::initializer_list<Row> rows) : m_rows(rows) {}
    // For tables that share most of their rows.
    explicit PropertyTable(std::vector<Row> rows) : m_rows(std::move(rows)) {}

    // A row of a field whose setter stores and then does what `after` says.
    template<typename T>
    static Row Field(std::u16string_view sKey, std::type_identity_t<T> defaultValue, T ControlType::*field,
                     After after = After::Nothing) {
        Row row = PlainRow(sKey, std::move(defaultValue), field);
        row.after = after;
        row.set = [field, sKey, after](ControlType& control, const PropertyValue& value) {
            StoreAndFollow(control, field, PropertyKind<T>::Take(value), sKey, after);
        };
        return row;
    }

    // A row of a field with a setter of its own. That setter must not come back to the table for this field.
    template<typename T, typename Argument>
    static Row Field(std::u16string_view sKey, std::type_identity_t<T> defaultValue, T ControlType::*field,
                     void (ControlType::*setter)(Argument)) {
        Row row = PlainRow(sKey, std::move(defaultValue), field);
        row.set = [setter](ControlType& control, const PropertyValue& value) {
            (control.*setter)(static_cast<Argument>(PropertyKind<T>::Take(value)));
        };
        return row;
    }

    // The public setter of a field: stores, then does what the row of the field says. The field must have a row.
    template<typename T>
    void Set(ControlType& control, T ControlType::*field, std::type_identity_t<T> value) const {
        const void* place = &(control.*field);
        const auto row = std::find_if(m_rows.begin(), m_rows.end(), [&control, place](const Row& r) {
            return r.fieldOf && r.fieldOf(control) == place;
        });
        StoreAndFollow(control, field, std::move(value), row->sKey, row->after);
    }

    // Sets all fields to their defaults; values that are no fields stay.
    void SetDefaults(ControlType& control) const {
        for (const Row& row : m_rows) {
            if (row.fieldOf) row.load(control, row.defaultOf(control));
        }
    }

    // Reads every key. A value that does not convert leaves its property as it is, and the next key is read.
    void Load(ControlType& control, const PropertyBag& bag) const {
        for (const Row& row : m_rows)
            IgnoreFailure([&] { row.load(control, bag.ReadProperty(row.sKey, row.defaultOf(control))); });
    }

    void Save(const ControlType& control, PropertyBag& bag) const {
        for (const Row& row : m_rows)
            bag.WriteProperty(row.sKey, row.get(control), row.defaultOf(control));
    }

    // By name. False when there is no such property; Put raises what the setter or the conversion raises.
    bool Get(const ControlType& control, std::u16string_view sName, PropertyValue& value) const {
        const Row* row = Find(sName);
        if (row) value = row->get(control);
        return row != nullptr;
    }
    bool Put(ControlType& control, std::u16string_view sName, const PropertyValue& value) const {
        const Row* row = Find(sName);
        if (row) row->set(control, value);
        return row != nullptr;
    }

    const std::vector<Row>& Rows() const { return m_rows; }

private:
    template<typename T>
    static Row PlainRow(std::u16string_view sKey, T defaultValue, T ControlType::*field) {
        Row row;
        row.sKey = sKey;
        row.defaultOf = [value = PropertyKind<T>::Make(defaultValue)](const ControlType&) { return value; };
        row.get = [field](const ControlType& control) { return PropertyKind<T>::Make(control.*field); };
        row.load = [field](ControlType& control, const PropertyValue& value) {
            control.*field = PropertyKind<T>::Take(value);
        };
        row.fieldOf = [field](const ControlType& control) -> const void* { return &(control.*field); };
        return row;
    }

    template<typename T>
    static void StoreAndFollow(ControlType& control, T ControlType::*field, T value, std::u16string_view sKey,
                               After after) {
        if (Has(after, After::OnlyOnChange) && control.*field == value) return;
        control.*field = std::move(value);
        control.AfterChange(sKey, after);
    }

    const Row* Find(std::u16string_view sName) const {
        const std::u16string sFolded = FoldCase(sName);
        const auto row = std::find_if(m_rows.begin(), m_rows.end(),
                                      [&sFolded](const Row& r) { return FoldCase(r.sKey) == sFolded; });
        return row == m_rows.end() ? nullptr : &*row;
    }

    std::vector<Row> m_rows;
};

} // namespace orvanta
