#include "ui/Picture.h"

#include <objbase.h>
#include <wincodec.h>

#include "com/Module.h"
#include "com/Ptr.h"
#include "ui/Dpi.h"

namespace recoveryui::ui {
namespace {

com::Ptr<IWICBitmapSource> Convert(IWICImagingFactory& factory, IWICBitmapSource* source,
                                   const GUID& format) {
    com::Ptr<IWICFormatConverter> converter;
    if (FAILED(factory.CreateFormatConverter(converter.GetAddressOf())) ||
        FAILED(converter->Initialize(source, format, WICBitmapDitherTypeNone, nullptr, 0,
                                     WICBitmapPaletteTypeCustom)))
        return {};
    return converter.Get();
}

com::Ptr<IWICBitmapSource> Decode(IWICImagingFactory& factory, IClassFactory& decoders, int id) {
    com::Ptr<IWICBitmapSource> nothing;
    const HINSTANCE module = com::Module::Instance();
    const HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(id), L"PNG");
    const HGLOBAL loaded = found ? LoadResource(module, found) : nullptr;
    if (!loaded) return nothing;

    com::Ptr<IWICStream> stream;
    com::Ptr<IWICBitmapDecoder> decoder;
    com::Ptr<IWICBitmapFrameDecode> frame;
    if (FAILED(factory.CreateStream(stream.GetAddressOf())) ||
        FAILED(stream->InitializeFromMemory(static_cast<BYTE*>(LockResource(loaded)),
                                            SizeofResource(module, found))) ||
        FAILED(decoders.CreateInstance(nullptr, IID_IWICBitmapDecoder,
                                       reinterpret_cast<void**>(decoder.GetAddressOf()))) ||
        FAILED(decoder->Initialize(stream.Get(), WICDecodeMetadataCacheOnDemand)) ||
        FAILED(decoder->GetFrame(0, frame.GetAddressOf())))
        return nothing;
    // In two steps: not every implementation gets from a palette to 24 bits in one.
    const auto colours = Convert(factory, frame.Get(), GUID_WICPixelFormat32bppBGR);
    return colours ? Convert(factory, colours.Get(), GUID_WICPixelFormat24bppBGR) : nothing;
}

// Without an alpha channel: of a bitmap that has one, a static control makes a copy that nobody destroys.
Bitmap CopyToBitmap(IWICBitmapSource& source, UINT width, UINT height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = static_cast<LONG>(width);
    info.bmiHeader.biHeight = -static_cast<LONG>(height);
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    const UINT stride = (width * 3 + 3) / 4 * 4;
    void* pixels = nullptr;
    Bitmap bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
    if (!bitmap || FAILED(source.CopyPixels(nullptr, stride, stride * height, static_cast<BYTE*>(pixels))))
        return {};
    return bitmap;
}

Bitmap Stretch(HBITMAP source, SIZE from, SIZE to) {
    const HDC screen = GetDC(nullptr);
    const HDC sourceDc = CreateCompatibleDC(screen), targetDc = CreateCompatibleDC(screen);
    Bitmap target(CreateCompatibleBitmap(screen, to.cx, to.cy));
    const HGDIOBJ oldSource = SelectObject(sourceDc, source),
                  oldTarget = SelectObject(targetDc, target.Get());
    SetStretchBltMode(targetDc, HALFTONE);
    SetBrushOrgEx(targetDc, 0, 0, nullptr);
    StretchBlt(targetDc, 0, 0, to.cx, to.cy, sourceDc, 0, 0, from.cx, from.cy, SRCCOPY);
    SelectObject(sourceDc, oldSource);
    SelectObject(targetDc, oldTarget);
    DeleteDC(sourceDc);
    DeleteDC(targetDc);
    ReleaseDC(nullptr, screen);
    return target;
}

}  // namespace

Bitmap Pictures::Load(int id, SIZE size) {
    if (!factory_ &&
        FAILED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                IID_IWICImagingFactory, reinterpret_cast<void**>(factory_.GetAddressOf()))))
        return {};
    if (!decoders_ &&
        FAILED(CoGetClassObject(CLSID_WICPngDecoder, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory,
                                reinterpret_cast<void**>(decoders_.GetAddressOf()))))
        return {};
    for (const int variant : {id, id + 1000, id + 2000}) {
        const com::Ptr<IWICBitmapSource> source = Decode(*factory_.Get(), *decoders_.Get(), variant);
        UINT width = 0, height = 0;
        if (!source || FAILED(source->GetSize(&width, &height))) return {};
        const bool last = variant == id + 2000;
        if (static_cast<LONG>(height) < size.cy && !last) continue;
        Bitmap bitmap = CopyToBitmap(*source.Get(), width, height);
        const SIZE own{static_cast<LONG>(width), static_cast<LONG>(height)};
        if (!bitmap || (own.cx == size.cx && own.cy == size.cy)) return bitmap;
        return Stretch(bitmap.Get(), own, size);
    }
    return {};
}

Pictures::Pictures() noexcept = default;
Pictures::~Pictures() = default;

Icon LoadIconOfSize(int id, int pixels) {
    return Icon(static_cast<HICON>(LoadImageW(com::Module::Instance(), MAKEINTRESOURCEW(id), IMAGE_ICON,
                                              pixels, pixels, LR_DEFAULTCOLOR)));
}

HIMAGELIST LoadIcons(HWND window, std::span<const int> ids, int pixels) {
    const int size = ScaleForWindow(window, pixels);
    const HIMAGELIST images =
        ImageList_Create(size, size, ILC_COLOR32 | ILC_MASK, static_cast<int>(ids.size()), 0);
    for (const int id : ids) ImageList_AddIcon(images, LoadIconOfSize(id, size).Get());
    return images;
}

}  // namespace recoveryui::ui
