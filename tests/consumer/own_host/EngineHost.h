#pragma once

#include <QByteArray>

#include <map>
#include <string>

/** What the host's settings store holds. */
std::map<std::string, QByteArray>& engineSettings();
