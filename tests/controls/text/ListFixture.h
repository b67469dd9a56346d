#pragma once

#include "base/Failure.h"
#include "controls/text/ctlUniListBoxExXP.h"
#include "controls/text/ctlUniListBoxXP.h"
#include "tests/controls/support/FormFixture.h"
#include "tests/support/Unicode.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace orvanta::testing {

// Number, source and description of the failure that a step raises; none when it raises none.
using Raised = std::optional<std::tuple<std::uint32_t, std::u16string, std::u16string>>;
template<typename Step>
Raised RaisedBy(Step&& step) {
    try {
        step();
    } catch (const Failure& failure) {
        return std::tuple{failure.Number(), failure.Source(), failure.Description()};
    }
    return std::nullopt;
}
inline Raised WrongIndex(std::u16string sSource) {
    return std::tuple{0x80040001u, std::move(sSource), std::u16string(u"Wrong Index")};
}

// List boxes on a shown form, and the means to act on their list windows as a user does. Places are client pixels of
// the list window.
class ListFixture : public FormFixture {
protected:
    using Values = std::initializer_list<std::pair<const char16_t*, PropertyValue>>;

    static PropertyBag BagOf(Values values) {
        PropertyBag bag;
        for (const auto& [sKey, value] : values)
            bag.WriteProperty(sKey, value);
        return bag;
    }
    // A list as a saved form has it: started by its load.
    template<typename List = ctlUniListBoxXP>
    List& Load(Values values = {}, ControlPlace place = {10, 10, 204, 124}) {
        List& list = form.Load<List>(u"lst", place, BagOf(values));
        Show();
        return list;
    }
    static void Fill(ListBoxCore& list, std::initializer_list<const char16_t*> texts) {
        for (const char16_t* s : texts)
            list.AddItem(s);
    }
    static std::vector<std::u16string> TextsOf(const ListBoxCore& list) {
        std::vector<std::u16string> all;
        for (std::int32_t l = 0; l < list.ListCount(); ++l)
            all.push_back(list.List(l));
        return all;
    }

    static LRESULT Ask(const ListBoxCore& list, UINT uMsg, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageW(list.hwnd(), uMsg, wParam, lParam);
    }
    static RECT ItemRect(const ListBoxCore& list, std::int32_t lPosition) {
        RECT rect{};
        Ask(list, LB_GETITEMRECT, static_cast<WPARAM>(lPosition), reinterpret_cast<LPARAM>(&rect));
        return rect;
    }
    static int HeightOf(const ListBoxCore& list, std::int32_t lPosition) {
        const RECT rect = ItemRect(list, lPosition);
        return rect.bottom - rect.top;
    }
    static DWORD StyleOf(const ListBoxCore& list) {
        return static_cast<DWORD>(GetWindowLongPtrW(list.hwnd(), GWL_STYLE));
    }

    static void PressAt(const ListBoxCore& list, int x, int y) {
        MoveTo(list.hwnd(), x, y);
        Mouse(MOUSEEVENTF_LEFTDOWN);
        Mouse(MOUSEEVENTF_LEFTUP);
    }
    // A click that is no double click with one before it.
    static void ClickItem(const ListBoxCore& list, std::int32_t lPosition, int x = 40) {
        NoDoubleClick();
        PressAt(list, x, ItemRect(list, lPosition).top + 3);
    }
    static void FocusOn(const ListBoxCore& list) {
        list.Host().Extender().SetFocus();
        Pump();
    }
};

} // namespace orvanta::testing
