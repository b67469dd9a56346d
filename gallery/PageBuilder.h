#pragma once

#include "controls/hosting/Form.h"

#include <windows.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvanta::gallery {

// A control on show.
struct Specimen {
    std::u16string sCaption;
    Control* control; // lent by the form
};

// Puts specimens on a form, each twice: in run mode, and beside it in design mode. They run down the page in blocks and
// go on in a further column when the page is full. Numbers are pixels.
class PageBuilder {
public:
    // left, top: where the page starts on the form, with the name of what it shows. The form's scale mode becomes
    // pixels.
    PageBuilder(Form& form, int left, int top, std::u16string_view sName);
    PageBuilder(const PageBuilder&) = delete;
    PageBuilder& operator=(const PageBuilder&) = delete;
    ~PageBuilder();

    // sCaption tells the state that setup brings the control to; it is called for both of them.
    template<typename ControlType, typename Setup>
    void Show(std::u16string_view sCaption, int width, int height, const Setup& setup) {
        StartBlock(sCaption, 2 * width + kGap, height);
        for (const bool bUserMode : {true, false}) {
            m_form.UserMode(bUserMode);
            const ControlPlace place{static_cast<float>(m_x + (bUserMode ? 0 : width + kGap)), static_cast<float>(m_y),
                                     static_cast<float>(width), static_cast<float>(height)};
            auto& control = m_form.Add<ControlType>(NextName(), place);
            setup(control);
            m_specimens.push_back({std::u16string(sCaption).append(bUserMode ? u" (run)" : u" (design)"), &control});
        }
        m_form.UserMode(true);
        m_y += height + kGap;
    }

    // A further control on one that holds others, in its units and in its mode; not among the specimens.
    template<typename ControlType>
    ControlType& Put(const ControlPlace& place, const Control& container) {
        return m_form.Add<ControlType>(NextName(), place, &container);
    }

    const std::vector<Specimen>& Specimens() const { return m_specimens; }
    // The corner behind everything that has been placed.
    SIZE Extent() const { return {m_right, m_bottom}; }

private:
    static constexpr int kGap = 12;

    void StartBlock(std::u16string_view sCaption, int width, int height);
    void Text(std::u16string_view s, int width);
    std::u16string NextName();

    Form& m_form;
    int m_top;
    int m_x;
    int m_y;
    int m_right = 0;
    int m_bottom = 0;
    int m_columnWidth = 0;
    int m_nNames = 0;
    std::vector<Specimen> m_specimens;
    std::vector<HWND> m_texts;
};

} // namespace orvanta::gallery
