// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/mupdf/MuPDFTextDevice.h>

namespace Tavrin
{

namespace
{

/// Drawing operations, and characters, that a page may have.
constexpr int operationLimit = 4'000'000;
constexpr int characterLimit = 1'000'000;

struct BoundedDevice {
    fz_device super;
    fz_device *text;
    DrawnBoxes *drawn;
    fz_cookie *cookie;
    int operations;
    int characters;
};

BoundedDevice &bounded(fz_device *device)
{
    return *reinterpret_cast<BoundedDevice *>(device);
}

/// Whether the page is still within its bounds.
bool count(fz_device *device, const fz_text *text = nullptr)
{
    BoundedDevice &self = bounded(device);
    for (const fz_text_span *span = text ? text->head : nullptr; span; span = span->next)
        self.characters += span->len;
    const bool isWithin = ++self.operations <= operationLimit && self.characters <= characterLimit;
    if (!isWithin)
        self.cookie->abort = 1;
    return isWithin;
}

void fillText(fz_context *context, fz_device *device, const fz_text *text, fz_matrix matrix,
              fz_colorspace *space, const float *color, float alpha, fz_color_params params)
{
    if (count(device, text))
        fz_fill_text(context, bounded(device).text, text, matrix, space, color, alpha, params);
}

void strokeText(fz_context *context, fz_device *device, const fz_text *text,
                const fz_stroke_state *stroke, fz_matrix matrix, fz_colorspace *space,
                const float *color, float alpha, fz_color_params params)
{
    if (count(device, text)) {
        fz_stroke_text(context, bounded(device).text, text, stroke, matrix, space, color, alpha,
                       params);
    }
}

void clipText(fz_context *context, fz_device *device, const fz_text *text, fz_matrix matrix,
              fz_rect scissor)
{
    if (count(device, text))
        fz_clip_text(context, bounded(device).text, text, matrix, scissor);
}

void clipStrokeText(fz_context *context, fz_device *device, const fz_text *text,
                    const fz_stroke_state *stroke, fz_matrix matrix, fz_rect scissor)
{
    if (count(device, text))
        fz_clip_stroke_text(context, bounded(device).text, text, stroke, matrix, scissor);
}

void ignoreText(fz_context *context, fz_device *device, const fz_text *text, fz_matrix matrix)
{
    if (count(device, text))
        fz_ignore_text(context, bounded(device).text, text, matrix);
}

/// Paper white, as producers paint it under their figures.
bool isWhite(fz_context *context, fz_colorspace *space, const float *color, fz_color_params params)
{
    float grey = 0;
    fz_convert_color(context, space, color, fz_device_gray(context), &grey, nullptr, params);
    return grey > 0.99F;
}

void addDrawn(fz_context *context, fz_device *device, fz_rect box)
{
    bounded(device).drawn->add(fz_intersect_rect(box, fz_device_current_scissor(context, device)));
}

void fillPath(fz_context *context, fz_device *device, const fz_path *path, int, fz_matrix matrix,
              fz_colorspace *space, const float *color, float, fz_color_params params)
{
    if (count(device) && !isWhite(context, space, color, params))
        addDrawn(context, device, fz_bound_path(context, path, nullptr, matrix));
}

void strokePath(fz_context *context, fz_device *device, const fz_path *path,
                const fz_stroke_state *stroke, fz_matrix matrix, fz_colorspace *space,
                const float *color, float, fz_color_params params)
{
    if (!count(device) || isWhite(context, space, color, params))
        return;
    // The engine's own bounds of a stroke make room for the longest mitre that might be.
    const float half = stroke->linewidth * fz_matrix_expansion(matrix) / 2;
    const fz_rect line = fz_bound_path(context, path, nullptr, matrix);
    addDrawn(context, device, fz_expand_rect(line, fz_max(half, 0.25F)));
}

void fillShade(fz_context *context, fz_device *device, fz_shade *shade, fz_matrix matrix, float,
               fz_color_params)
{
    if (count(device))
        addDrawn(context, device, fz_bound_shade(context, shade, matrix));
}

void fillImage(fz_context *context, fz_device *device, fz_image *, fz_matrix matrix, float,
               fz_color_params)
{
    if (count(device))
        addDrawn(context, device, fz_transform_rect(fz_unit_rect, matrix));
}

void fillImageMask(fz_context *context, fz_device *device, fz_image *, fz_matrix matrix,
                   fz_colorspace *, const float *, float, fz_color_params)
{
    if (count(device))
        addDrawn(context, device, fz_transform_rect(fz_unit_rect, matrix));
}

void clipPath(fz_context *, fz_device *device, const fz_path *, int, fz_matrix, fz_rect)
{
    count(device);
}

void popClip(fz_context *, fz_device *device)
{
    count(device);
}

void closeDevice(fz_context *context, fz_device *device)
{
    fz_close_device(context, bounded(device).text);
}

void dropDevice(fz_context *context, fz_device *device)
{
    fz_drop_device(context, bounded(device).text);
}

} // namespace

void DrawnBoxes::add(fz_rect box)
{
    if (fz_is_empty_rect(box) || fz_is_infinite_rect(box))
        return;
    constexpr float reach = 1;
    fz_rect *last = count > 0 ? &boxes[count - 1] : nullptr;
    const bool touches = last && box.x0 <= last->x1 + reach && box.x1 >= last->x0 - reach &&
                         box.y0 <= last->y1 + reach && box.y1 >= last->y0 - reach;
    if (touches || count == limit)
        *last = fz_union_rect(*last, box);
    else
        boxes[count++] = box;
}

fz_device *newBoundedTextDevice(fz_context *context, fz_stext_page *page, DrawnBoxes *drawn,
                                fz_cookie *cookie)
{
    auto *device =
        reinterpret_cast<BoundedDevice *>(fz_new_device_of_size(context, sizeof(BoundedDevice)));
    device->drawn = drawn;
    device->cookie = cookie;
    device->super.close_device = closeDevice;
    device->super.drop_device = dropDevice;
    device->super.fill_text = fillText;
    device->super.stroke_text = strokeText;
    device->super.clip_text = clipText;
    device->super.clip_stroke_text = clipStrokeText;
    device->super.ignore_text = ignoreText;
    device->super.fill_path = fillPath;
    device->super.stroke_path = strokePath;
    device->super.fill_shade = fillShade;
    device->super.fill_image = fillImage;
    device->super.fill_image_mask = fillImageMask;
    device->super.clip_path = clipPath;
    device->super.pop_clip = popClip;
    fz_try(context)
    {
        fz_stext_options options{};
        options.flags = FZ_STEXT_INHIBIT_SPACES;
        device->text = fz_new_stext_device(context, page, &options);
        device->super.hints = device->text->hints;
    }
    fz_catch(context)
    {
        fz_drop_device(context, &device->super);
        fz_rethrow(context);
    }
    return &device->super;
}

} // namespace Tavrin
