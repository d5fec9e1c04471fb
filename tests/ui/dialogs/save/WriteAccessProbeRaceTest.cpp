// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The probe while another thread makes files and renames them to the name that is probed.
#include "WriteAccessProbeFixture.h"

#include <boost/filesystem/fstream.hpp>

#include <atomic>
#include <iostream>
#include <thread>

using morvane::ui::checkWriteAccess;
using namespace morvane::test;

namespace {

/** docs/quality.md has the results of 20,000 rounds. */
int numberOfRounds()
{
    const int wanted = qEnvironmentVariableIntValue("MORVANE_RACE_ROUNDS");
    return wanted > 0 ? wanted : 300;
}

const int rounds = numberOfRounds();

/** Probes the name without a pause until the other thread is done. */
class WriteAccessProbeRace : public WriteAccessProbeTest
{
protected:
    void run()
    {
        std::thread rival([this] {
            for (int round = 0; round < rounds; ++round) {
                playRound(round);
            }
            m_isOver = true;
        });
        while (!m_isOver) {
            m_refused += checkWriteAccess(m_name) ? 0 : 1;
            ++m_probes;
            if (m_wantsPause) {
                pause();
            }
        }
        rival.join();
    }

    void pause()
    {
        m_isPaused = true;
        while (m_wantsPause) {
            std::this_thread::yield();
        }
        m_isPaused = false;
    }

    /** Saves as a careful program does: writes a file with another name and then renames it. */
    void playRound(int round)
    {
        fs::ofstream(m_other, std::ios::binary) << round;
        waitForProbes(1);
        boost::system::error_code error;
        for (fs::rename(m_other, m_name, error); error; fs::rename(m_other, m_name, error)) {
            ++m_refusedRenames; // the program sees the error and still has its file
        }
        waitForProbes(2); // the first of the two may have begun before the rename
        m_lost += holds(m_name, round) ? 0 : 1;
        for (fs::remove(m_name, error); error; fs::remove(m_name, error)) {
        }
        waitForProbes(2);
        pauseProbes();
        m_leftBehind += fs::exists(m_name) ? 1 : 0;
        m_wantsPause = false;
    }

    void waitForProbes(int count) const
    {
        const int seen = m_probes;
        while (m_probes - seen < count) {
            std::this_thread::yield();
        }
    }

    void pauseProbes()
    {
        m_wantsPause = true;
        while (!m_isPaused) {
            std::this_thread::yield();
        }
    }

    static bool holds(const fs::path& path, int round)
    {
        fs::ifstream file(path, std::ios::binary);
        int content = -1;
        file >> content;
        return content == round;
    }

    const fs::path m_name = path("name.dat");
    const fs::path m_other = path("other.dat");
    std::atomic<bool> m_isOver{false};
    std::atomic<bool> m_wantsPause{false};
    std::atomic<bool> m_isPaused{false};
    std::atomic<int> m_probes{0};
    int m_refused = 0;
    // Used only by the other thread until it is joined.
    int m_lost = 0;
    int m_leftBehind = 0;
    int m_refusedRenames = 0;
};

TEST_F(WriteAccessProbeRace, losesNoFileThatIsRenamedOntoTheName)
{
    run();
    std::cout << "race lost " << m_lost << " of " << rounds << ", " << m_probes << " probes, " << m_refusedRenames
              << " renames refused, " << m_refused << " probes refused, " << m_leftBehind << " left behind"
              << std::endl;
    RecordProperty("lost", m_lost);
    EXPECT_EQ(m_lost, 0);
    EXPECT_EQ(m_leftBehind, 0);
#ifndef Q_OS_WIN
    EXPECT_EQ(m_refused, 0);
    EXPECT_EQ(m_refusedRenames, 0);
#endif
    fs::remove(m_name);
    fs::remove(m_other);
    EXPECT_TRUE(fs::is_empty(m_directory.path().toStdString())) << "the probe leaves nothing behind";
}

} // namespace
