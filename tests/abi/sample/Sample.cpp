// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "Sample.h"

Sample::Sample() = default;

Sample::~Sample() = default;

std::string Sample::text() const
{
    return "sample";
}

#ifdef SAMPLE_WITH_VIRTUAL
void Sample::virtualBetween() {}
#endif

void Sample::virtualAtTheEnd() {}

#ifndef SAMPLE_WITHOUT_FUNCTION
int Sample::vanishing() const
{
    return m_old;
}
#endif

#ifdef SAMPLE_WITH_FUNCTION
int Sample::added() const
{
    return m_old;
}
#endif

#ifdef SAMPLE_WITH_OTHER_RESULT
long Sample::result() const
#else
int Sample::result() const
#endif
{
    return m_old;
}
