// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

/** A library so small that each change to it is known. check_the_check.sh makes the changes. */
class Sample
{
public:
    Sample();
    virtual ~Sample();
    virtual std::string text() const;
#ifdef SAMPLE_WITH_VIRTUAL
    virtual void virtualBetween();
#endif
    virtual void virtualAtTheEnd();
#ifndef SAMPLE_WITHOUT_FUNCTION
    int vanishing() const;
#endif
#ifdef SAMPLE_WITH_FUNCTION
    int added() const;
#endif
#ifdef SAMPLE_WITH_OTHER_RESULT
    long result() const;
#else
    int result() const;
#endif

private:
#ifdef SAMPLE_WITH_MEMBER
    int m_new = 0;
#endif
    int m_old = 0;
};
