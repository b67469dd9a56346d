#include "drawing/OlePicture.h"

#include <olectl.h>

namespace orvanta {

namespace {

static_assert(OlePicture::kTypeBitmap == PICTYPE_BITMAP && OlePicture::kTypeIcon == PICTYPE_ICON);

// The picture owns the handle from here on.
OlePicture MakePicture(PICTDESC& description) {
    ComReference<IDispatch> object;
    OleCreatePictureIndirect(&description, IID_IDispatch, TRUE, object.ReceiveVoid());
    return OlePicture(object.As<IPicture>());
}

// A stream over memory of its own.
ComReference<IStream> MakeStream() {
    ComReference<IStream> stream;
    CreateStreamOnHGlobal(nullptr, TRUE, stream.Receive());
    return stream;
}

} // namespace

OlePicture OlePicture::OfBitmap(HBITMAP bitmap) {
    PICTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.picType = PICTYPE_BITMAP;
    description.bmp.hbitmap = bitmap;
    OlePicture picture = MakePicture(description);
    if (picture.IsEmpty()) DeleteObject(bitmap);
    return picture;
}

OlePicture OlePicture::OfIcon(HICON icon) {
    PICTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.picType = PICTYPE_ICON;
    description.icon.hicon = icon;
    OlePicture picture = MakePicture(description);
    if (picture.IsEmpty()) DestroyIcon(icon);
    return picture;
}

OlePicture OlePicture::Load(std::string_view bytes) {
    const ComReference<IStream> stream = MakeStream();
    if (!stream || FAILED(stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr))) return {};
    if (FAILED(stream->Seek({}, STREAM_SEEK_SET, nullptr))) return {};
    ComReference<IPicture> picture;
    OleLoadPicture(stream.Get(), static_cast<LONG>(bytes.size()), FALSE, IID_IPicture, picture.ReceiveVoid());
    return OlePicture(std::move(picture));
}

HGDIOBJ OlePicture::Handle() const {
    OLE_HANDLE handle = 0;
    if (m_picture) m_picture->get_Handle(&handle);
    // The interface hands out 32 bits; GDI handles are those, sign-extended.
    return reinterpret_cast<HGDIOBJ>(static_cast<LONG_PTR>(static_cast<std::int32_t>(handle)));
}

std::int16_t OlePicture::Type() const {
    SHORT iType = kTypeNone;
    if (m_picture) m_picture->get_Type(&iType);
    return iType;
}

std::int32_t OlePicture::Width() const {
    OLE_XSIZE_HIMETRIC width = 0;
    if (m_picture) m_picture->get_Width(&width);
    return width;
}

std::int32_t OlePicture::Height() const {
    OLE_YSIZE_HIMETRIC height = 0;
    if (m_picture) m_picture->get_Height(&height);
    return height;
}

std::string OlePicture::Save() const {
    if (!m_picture) return {};
    const ComReference<IStream> stream = MakeStream();
    LONG nWritten = 0;
    if (!stream || FAILED(m_picture->SaveAsFile(stream.Get(), TRUE, &nWritten))) return {};
    ULARGE_INTEGER end{};
    if (FAILED(stream->Seek({}, STREAM_SEEK_END, &end)) || FAILED(stream->Seek({}, STREAM_SEEK_SET, nullptr)))
        return {};
    std::string bytes(static_cast<std::size_t>(end.QuadPart), '\0');
    ULONG nRead = 0;
    stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &nRead);
    bytes.resize(nRead);
    return bytes;
}

} // namespace orvanta
