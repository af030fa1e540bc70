// How well what somebody typed fits the title of a command.
#pragma once
#include <QString>
#include <optional>

// The less the better; nothing when it does not fit. Every word that is typed must be found: best as the
// beginning of a word of the title, else inside of one, else with its letters scattered in order.
std::optional<int> Misfit(const QString& title, const QString& typed);
