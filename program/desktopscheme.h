// Whether the desktop wants its windows light or dark, asked of its portal over the session bus.
#pragma once

#include "controls/colours.h"

#include <QObject>

#include <functional>
#include <optional>

// Asks without waiting. answered is called once, later, while context lives: where there is a bus
// and a portal on it, and the user has chosen one of the two.
void AskDesktopScheme(QObject* context, std::function<void(Scheme)> answered);

// What the portal's value "color-scheme" means; nothing where the user has no preference.
std::optional<Scheme> SchemeOfPortal(uint colorScheme);
