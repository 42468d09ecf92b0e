#include "platform/toolkit/Events.h"

namespace ostrelum::inline toolkit {
namespace {

struct Caller {
    const Event& event;
    void operator()(Handler::Plain call) const { call(); }
    void operator()(Handler::Indexed call) const { call(event.index); }
    void operator()(Handler::Mouse call) const
    {
        call(event.button, event.shift, event.x, event.y);
    }
    void operator()(Handler::IndexedMouse call) const
    {
        call(event.index, event.button, event.shift, event.x, event.y);
    }
    void operator()(Handler::Keys call) const { call(event.key, event.shift); }
    void operator()(Handler::IndexedKeys call) const { call(event.index, event.key, event.shift); }
    void operator()(Handler::Cancelling call) const
    {
        bool unasked = false;
        call(event.cancel ? *event.cancel : unasked);
    }
};

} // namespace

void Handler::operator()(const Event& event) const
{
    std::visit(Caller{event}, call);
}

} // namespace ostrelum::inline toolkit
