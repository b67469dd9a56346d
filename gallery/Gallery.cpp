// Shows every control in all its states. With "--save FOLDER" it opens no window for long: it saves a picture of each
// page to that folder.
#include "base/Utf8.h"
#include "gallery/Inspector.h"
#include "gallery/Pages.h"
#include "gallery/PngFile.h"
#include "plumbing/GdiOwner.h"
#include "plumbing/WideText.h"

#include <windows.h>

#include <ole2.h>
#include <shellapi.h>

#include <cstdio>
#include <memory>
#include <optional>

namespace orvanta::gallery {
namespace {

constexpr int kMargin = 10;
constexpr int kHeight = 640;
constexpr int kWidth = 1200;

void DeliverMessages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

// What the window's client area shows, with all windows inside it.
OwnedBitmap Grab(HWND window, SIZE size) {
    const WindowDc source(window);
    OwnedBitmap bitmap(CreateCompatibleBitmap(source.Get(), size.cx, size.cy));
    const OwnedDc target(CreateCompatibleDC(source.Get()));
    const Selection selection(target.Get(), bitmap.Get());
    BitBlt(target.Get(), 0, 0, size.cx, size.cy, source.Get(), 0, 0, SRCCOPY);
    return bitmap;
}

bool SavePage(const PngWriter& writer, const Page& page, const std::u16string& sFolder) {
    Form form(page.sName, true, WS_POPUP);
    PageBuilder builder(form, kMargin, kMargin, page.sName);
    page.build(builder);
    const SIZE extent = builder.Extent();
    const SIZE size{extent.cx + kMargin, extent.cy + kMargin};
    form.InnerSize(static_cast<float>(size.cx), static_cast<float>(size.cy));
    form.Show();
    DeliverMessages();
    SetFocus(nullptr); // no caret, and no mark that depends on the order of the controls
    DeliverMessages();
    return writer.Save(Grab(form.hWnd(), size).Get(), sFolder + u"\\" + page.sName + u".png");
}

int SavePages(const std::u16string& sFolder) {
    const PngWriter writer;
    int nFailed = 0;
    for (const Page& page : Pages()) {
        const bool bSaved = SavePage(writer, page, sFolder);
        std::printf("%s%s\n", StringToUtf8Bytes(page.sName).c_str(), bSaved ? "" : ": not saved");
        if (!bSaved) ++nFailed;
    }
    return nFailed == 0 ? 0 : 1;
}

int ShowPages() {
    Form form(u"Gallery");
    form.ScaleMode(ScaleUnit::Pixels);
    form.InnerSize(kWidth, kHeight);
    form.CentreOnScreen();
    std::vector<std::u16string> names;
    for (const Page& page : Pages())
        names.emplace_back(page.sName);
    Inspector inspector(form.hWnd(), kHeight, names);
    std::optional<PageBuilder> builder;
    const auto show = [&](std::size_t n) {
        inspector.Specimens({});
        builder.reset();
        builder.emplace(form, Inspector::kWidth + kMargin, kMargin, Pages()[n].sName);
        Pages()[n].build(*builder);
        inspector.Specimens(builder->Specimens());
    };
    inspector.PageChosen.Add(show);
    show(0);
    form.Show();
    MSG message;
    while (!form.IsClosed() && GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (Form::DialogStep(message) || inspector.TakeKey(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return 0;
}

int Main(int nArguments, wchar_t** arguments) {
    const HRESULT ole = OleInitialize(nullptr);
    const int rc =
        nArguments == 3 && TextOfWide(arguments[1]) == u"--save" ? SavePages(TextOfWide(arguments[2])) : ShowPages();
    if (SUCCEEDED(ole)) OleUninitialize();
    return rc;
}

} // namespace
} // namespace orvanta::gallery

int wmain(int nArguments, wchar_t** arguments) {
    return orvanta::gallery::Main(nArguments, arguments);
}
