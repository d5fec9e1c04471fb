#pragma once

#include <QByteArray>

#include <map>
#include <string>

/** The content of the host's settings store. */
std::map<std::string, QByteArray>& engineSettings();
