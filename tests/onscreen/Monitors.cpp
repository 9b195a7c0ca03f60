#include "XClient.h"

#include "XReply.h"

#include <sys/uio.h>
#include <xcb/xcbext.h>

namespace brimlight::onscreen {
namespace {

constexpr double millimetresPerPixel = 25.4 / 96;

} // namespace

void XClient::setSize(QSize size)
{
    const auto resources = owned(xcb_randr_get_screen_resources_current_reply(
        m_xcb, xcb_randr_get_screen_resources_current(m_xcb, root()), nullptr));
    xcb_randr_output_t output = *xcb_randr_get_screen_resources_current_outputs(resources.get());
    const xcb_randr_crtc_t crtc = *xcb_randr_get_screen_resources_current_crtcs(resources.get());
    const auto width = static_cast<uint16_t>(size.width());
    const auto height = static_cast<uint16_t>(size.height());

    xcb_randr_mode_t mode = XCB_NONE;
    for (auto it = xcb_randr_get_screen_resources_current_modes_iterator(resources.get()); it.rem;
         xcb_randr_mode_info_next(&it)) {
        if (it.data->width == width && it.data->height == height)
            mode = it.data->id;
    }
    if (mode == XCB_NONE) {
        const QByteArray name = QByteArray::number(width) + 'x' + QByteArray::number(height);
        xcb_randr_mode_info_t info = {};
        info.width = info.htotal = width;
        info.height = info.vtotal = height;
        info.name_len = static_cast<uint16_t>(name.size());
        const auto created = owned(xcb_randr_create_mode_reply(
            m_xcb, xcb_randr_create_mode(m_xcb, root(), info, info.name_len, name.constData()), nullptr));
        mode = created->mode;
        xcb_randr_add_output_mode(m_xcb, output, mode);
    }
    // A screen is never smaller than what an output shows of it: the output goes dark meanwhile.
    const auto show = [&](xcb_randr_mode_t shown, uint32_t outputs) {
        owned(xcb_randr_set_crtc_config_reply(
            m_xcb,
            xcb_randr_set_crtc_config(m_xcb, crtc, XCB_CURRENT_TIME, XCB_CURRENT_TIME, 0, 0, shown,
                                      XCB_RANDR_ROTATION_ROTATE_0, outputs, &output),
            nullptr));
    };
    show(XCB_NONE, 0);
    xcb_randr_set_screen_size(m_xcb, root(), width, height,
                              static_cast<uint32_t>(width * millimetresPerPixel),
                              static_cast<uint32_t>(height * millimetresPerPixel));
    show(mode, 1);
}

void XClient::splitMonitors(const QRect &primary, const QRect &rest)
{
    const auto resources = owned(xcb_randr_get_screen_resources_current_reply(
        m_xcb, xcb_randr_get_screen_resources_current(m_xcb, root()), nullptr));
    setMonitor("rest", rest, false, *xcb_randr_get_screen_resources_current_outputs(resources.get()));
    setMonitor("primary", primary, true, XCB_NONE);
    sync();
}

void XClient::joinMonitors()
{
    for (const char *name : {"primary", "rest"})
        xcb_randr_delete_monitor(m_xcb, root(), atom(name));
    sync();
}

void XClient::setMonitor(const char *name, const QRect &area, bool isPrimary, xcb_randr_output_t output)
{
    struct
    {
        xcb_randr_set_monitor_request_t head;
        xcb_randr_monitor_info_t info;
        xcb_randr_output_t output;
    } set = {};
    set.head.window = root();
    set.info.name = atom(name);
    set.info.primary = isPrimary;
    set.info.nOutput = output == XCB_NONE ? 0 : 1;
    set.info.x = static_cast<int16_t>(area.x());
    set.info.y = static_cast<int16_t>(area.y());
    set.info.width = static_cast<uint16_t>(area.width());
    set.info.height = static_cast<uint16_t>(area.height());
    set.info.width_in_millimeters = static_cast<uint32_t>(area.width() * millimetresPerPixel);
    set.info.height_in_millimeters = static_cast<uint32_t>(area.height() * millimetresPerPixel);
    set.output = output;

    // The library's own function for this reads a length that it never sets. xcb keeps two elements for
    // itself.
    iovec parts[3] = {{}, {}, {&set, sizeof set - (output == XCB_NONE ? sizeof set.output : 0)}};
    const xcb_protocol_request_t request{
        .count = 1, .ext = &xcb_randr_id, .opcode = XCB_RANDR_SET_MONITOR, .isvoid = 1};
    xcb_send_request(m_xcb, 0, &parts[2], &request);
}

} // namespace brimlight::onscreen
