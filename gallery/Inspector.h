#pragma once

#include "base/Event.h"
#include "controls/hosting/WindowObject.h"
#include "gallery/PageBuilder.h"

#include <windows.h>

#include <cstddef>
#include <string>
#include <vector>

namespace orvanta::gallery {

// The panel at the left of the gallery: the pages, the controls of the page on show, and a row to read and set any
// property of the chosen control by its name. Made of the system's own windows.
class Inspector final : public WindowObject {
public:
    static constexpr int kWidth = 230;

    Inspector(HWND parent, int height, const std::vector<std::u16string>& pageNames);

    // The controls to choose from; lent until the next call.
    void Specimens(std::vector<Specimen> specimens);
    // A step of the message loop, behind the form's: Tab goes round the panel and Enter presses Set.
    bool TakeKey(MSG& message);
    // What the user does, for callers that have no hands.
    void ChooseSpecimen(std::size_t n);
    bool SetProperty(const std::u16string& sName, const std::u16string& sValue);

    Event<std::size_t> PageChosen;

private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    HWND MakeChild(const wchar_t* sClass, const wchar_t* sText, DWORD style, int top, int height, int id);
    Control* Chosen() const;
    void ShowNames();
    void ShowValue();
    void SetValue();

    std::vector<Specimen> m_specimens;
    HWND m_pages = nullptr;
    HWND m_controls = nullptr;
    HWND m_names = nullptr;
    HWND m_value = nullptr;
    HWND m_answer = nullptr;
};

} // namespace orvanta::gallery
