#include "controls/hosting/OleData.h"

#include "base/Failure.h"
#include "controls/hosting/ComObject.h"
#include "plumbing/CallbackBorder.h"
#include "plumbing/SystemAnsiCodePage.h"
#include "plumbing/WideText.h"

#include <ole2.h>
#include <shellapi.h>
#include <shlobj.h>

#include <algorithm>
#include <cstring>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace orvanta {

namespace {

using Content = DataObject::Content;

FORMATETC FormatOf(std::int16_t iFormat) {
    return {static_cast<CLIPFORMAT>(iFormat), nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
}

bool IsText(std::int16_t iFormat) {
    return iFormat == kFormatText || iFormat == kFormatUnicodeText;
}

PropertyBytes BytesOf(const void* data, std::size_t nBytes) {
    const auto* first = static_cast<const std::uint8_t*>(data);
    return PropertyBytes(first, first + nBytes);
}

// The content as the bytes that travel.
PropertyBytes Packed(const Content& content, std::int16_t iFormat) {
    if (iFormat == kFormatUnicodeText)
        return BytesOf(content.sText.c_str(), (content.sText.size() + 1) * sizeof(char16_t));
    if (iFormat == kFormatText) {
        const std::string sNarrow = SystemAnsiCodePage::Instance().TextToBytes(content.sText);
        return BytesOf(sNarrow.c_str(), sNarrow.size() + 1);
    }
    if (iFormat != kFormatFiles) return content.bytes;
    std::u16string sNames;
    for (const std::u16string& sFile : content.files)
        sNames.append(sFile).push_back(u'\0');
    sNames.push_back(u'\0');
    DROPFILES header{};
    header.pFiles = sizeof header;
    header.fWide = TRUE;
    PropertyBytes bytes = BytesOf(&header, sizeof header);
    const PropertyBytes names = BytesOf(sNames.data(), sNames.size() * sizeof(char16_t));
    bytes.insert(bytes.end(), names.begin(), names.end());
    return bytes;
}

std::u16string TextOfBytes(const PropertyBytes& bytes) {
    std::u16string s(bytes.size() / sizeof(char16_t), u'\0');
    std::memcpy(s.data(), bytes.data(), s.size() * sizeof(char16_t));
    return s.substr(0, s.find(u'\0'));
}

std::u16string NarrowTextOfBytes(const PropertyBytes& bytes) {
    const auto end = std::find(bytes.begin(), bytes.end(), std::uint8_t{0});
    return SystemAnsiCodePage::Instance().BytesToText(std::string(bytes.begin(), end));
}

std::vector<std::u16string> FilesOf(HDROP drop) {
    std::vector<std::u16string> files;
    const UINT nFiles = DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0);
    for (UINT n = 0; n < nFiles; ++n) {
        std::u16string sFile(DragQueryFileW(drop, n, nullptr, 0) + 1, u'\0');
        sFile.resize(DragQueryFileW(drop, n, WideBuffer(sFile), static_cast<UINT>(sFile.size())));
        files.push_back(std::move(sFile));
    }
    return files;
}

Content Unpacked(HGLOBAL memory, std::int16_t iFormat) {
    Content content;
    if (iFormat == kFormatFiles) {
        content.files = FilesOf(static_cast<HDROP>(memory));
        return content;
    }
    const void* data = GlobalLock(memory);
    if (!data) return content;
    content.bytes = BytesOf(data, GlobalSize(memory));
    GlobalUnlock(memory);
    if (iFormat == kFormatUnicodeText) content.sText = TextOfBytes(content.bytes);
    if (iFormat == kFormatText) content.sText = NarrowTextOfBytes(content.bytes);
    return content;
}

// A block that the receiver frees; null when memory is short.
HGLOBAL GlobalCopy(const PropertyBytes& bytes) {
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, std::max<std::size_t>(bytes.size(), 1));
    void* target = memory ? GlobalLock(memory) : nullptr;
    if (!target) return memory;
    std::memcpy(target, bytes.data(), bytes.size());
    GlobalUnlock(memory);
    return memory;
}

class OfferedData final : public ComObject<IDataObject> {
public:
    explicit OfferedData(std::shared_ptr<DataObject> data) : m_data(std::move(data)) {}

    HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override {
        if (!format || !medium) return E_POINTER;
        *medium = {};
        const HRESULT known = QueryGetData(format);
        if (FAILED(known)) return known;
        const auto iFormat = static_cast<std::int16_t>(format->cfFormat);
        std::optional<Content> content;
        AtCallbackBorder([&] { content = m_data->Fetch(Offered(iFormat)); });
        if (!content) return DV_E_FORMATETC;
        return AtObjectBorder([&] {
            medium->hGlobal = GlobalCopy(Packed(*content, iFormat));
            if (!medium->hGlobal) return STG_E_MEDIUMFULL;
            medium->tymed = TYMED_HGLOBAL;
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) override {
        if (!format) return E_POINTER;
        if ((format->tymed & TYMED_HGLOBAL) == 0) return DV_E_TYMED;
        return m_data->GetFormat(Offered(static_cast<std::int16_t>(format->cfFormat))) ? S_OK : DV_E_FORMATETC;
    }
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC*, FORMATETC* result) override {
        if (result) result->ptd = nullptr;
        return DATA_S_SAMEFORMATETC;
    }
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD lDirection, IEnumFORMATETC** result) override {
        if (!result) return E_POINTER;
        *result = nullptr;
        if (lDirection != DATADIR_GET) return E_NOTIMPL;
        return AtObjectBorder([&] {
            std::vector<FORMATETC> formats;
            for (const std::int16_t iFormat : m_data->Formats())
                formats.push_back(FormatOf(iFormat));
            if (m_data->GetFormat(kFormatText) != m_data->GetFormat(kFormatUnicodeText))
                formats.push_back(FormatOf(m_data->GetFormat(kFormatText) ? kFormatUnicodeText : kFormatText));
            return SHCreateStdEnumFmtEtc(static_cast<UINT>(formats.size()), formats.data(), result);
        });
    }
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override {
        return OLE_E_ADVISENOTSUPPORTED;
    }
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return OLE_E_ADVISENOTSUPPORTED; }
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA**) override { return OLE_E_ADVISENOTSUPPORTED; }

private:
    bool Answers(REFIID iid) const override { return IsEqualIID(iid, IID_IDataObject); }

    // The format that stands for another one: one text format serves for both.
    std::int16_t Offered(std::int16_t iFormat) const {
        if (!IsText(iFormat) || m_data->GetFormat(iFormat)) return iFormat;
        return iFormat == kFormatText ? kFormatUnicodeText : kFormatText;
    }

    std::shared_ptr<DataObject> m_data;
};

std::optional<Content> FetchFrom(IDataObject& source, std::int16_t iFormat) {
    FORMATETC format = FormatOf(iFormat);
    STGMEDIUM medium{};
    if (FAILED(source.GetData(&format, &medium))) return std::nullopt;
    std::optional<Content> content;
    if (medium.tymed == TYMED_HGLOBAL && medium.hGlobal) content = Unpacked(medium.hGlobal, iFormat);
    ReleaseStgMedium(&medium);
    return content;
}

} // namespace

ComReference<IDataObject> OfferData(std::shared_ptr<DataObject> data) {
    return ComReference<IDataObject>(new OfferedData(std::move(data)));
}

void TakeData(DataObject& data, IDataObject* source) {
    data.Clear();
    data.BringsPromised(nullptr);
    if (!source) return;
    ComReference<IEnumFORMATETC> formats;
    if (FAILED(source->EnumFormatEtc(DATADIR_GET, formats.Receive())) || !formats) return;
    FORMATETC format{};
    while (formats->Next(1, &format, nullptr) == S_OK) {
        if ((format.tymed & TYMED_HGLOBAL) != 0) data.SetFormat(static_cast<std::int16_t>(format.cfFormat));
        CoTaskMemFree(format.ptd);
    }
    source->AddRef();
    const ComReference<IDataObject> held(source);
    data.BringsPromised([held](std::int16_t iFormat) { return FetchFrom(*held.Get(), iFormat); });
}

} // namespace orvanta
