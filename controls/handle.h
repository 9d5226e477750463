// Connecting a control's signal to its handler.
#pragma once

#include "controls/application.h"

#include <functional>
#include <type_traits>

// Calls it as Handle says.
template <typename Receiver, typename Handler, typename... Arguments>
void CallHandler(Receiver* receiver, const Handler& handler, const Arguments&... arguments) {
    if constexpr (std::is_invocable_v<Handler, Receiver*, Arguments...>)
        std::invoke(handler, receiver, arguments...);
    else if constexpr (std::is_invocable_v<Handler, Arguments...>)
        std::invoke(handler, arguments...);
    else if constexpr (std::is_invocable_v<Handler, Receiver*>)
        std::invoke(handler, receiver);
    else
        std::invoke(handler);
}

// Runs the handler (a member of the receiver, or a function; with the signal's arguments or
// with none) at each signal, while the receiver is whole. A run-time error that it throws is
// reported here: it must not travel through the toolkit, which is not made for that.
template <typename Sender, typename Signal, typename Receiver, typename Handler>
void Handle(Sender* sender, Signal signal, Receiver* receiver, Handler handler) {
    QObject* object = receiver;
    QObject::connect(sender, signal, receiver, [object, handler](auto... arguments) {
        // A window that goes away is only a widget while its controls go, and send signals.
        if (auto* whole = qobject_cast<Receiver*>(object))
            Application::Guard([&] { CallHandler(whole, handler, arguments...); });
    });
}
