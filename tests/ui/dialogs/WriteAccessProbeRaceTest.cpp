// The probe while another thread makes files and renames them onto the name that is probed.
#include "WriteAccessProbeFixture.h"

#include <atomic>
#include <fstream>
#include <iostream>
#include <thread>

using namespace morvane::test;

namespace {

/** docs/quality.md has the figures of 20,000. */
int numberOfRounds()
{
    const int wanted = qEnvironmentVariableIntValue("MORVANE_RACE_ROUNDS");
    return wanted > 0 ? wanted : 1000;
}

const int rounds = numberOfRounds();

/** Probes the name without a pause until the rival is done. */
class ProbeRace : public WriteAccessProbeTest
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
        }
        rival.join();
    }

    /** What a careful program does when it saves: it writes a file of another name and gives it the right one. */
    void playRound(int round)
    {
        std::ofstream(m_other.native(), std::ios::binary) << round;
        waitForProbes(1);
        boost::system::error_code error;
        fs::rename(m_other, m_name, error);
        if (error) { // where the system refuses it the program knows, and still has its file
            ++m_refusedRenames;
            m_lost += holds(m_other, round) ? 0 : 1;
            return;
        }
        waitForProbes(2); // one may be under way
        m_lost += holds(m_name, round) ? 0 : 1;
        fs::remove(m_name, error);
    }

    void waitForProbes(int count) const
    {
        const int seen = m_probes;
        while (m_probes - seen < count) {
            std::this_thread::yield();
        }
    }

    static bool holds(const fs::path& path, int round)
    {
        std::ifstream file(path.native(), std::ios::binary);
        int content = -1;
        file >> content;
        return content == round;
    }

    const fs::path m_name = path("name.dat");
    const fs::path m_other = path("other.dat");
    std::atomic<bool> m_isOver{false};
    std::atomic<int> m_probes{0};
    int m_lost = 0;           // of the rival until it is joined
    int m_refusedRenames = 0; // likewise
    int m_refused = 0;
};

TEST_F(ProbeRace, losesNoFileThatIsRenamedOntoTheName)
{
    run();
    std::cout << "race lost " << m_lost << " of " << rounds << ", " << m_probes << " probes, " << m_refusedRenames
              << " renames refused, " << m_refused << " probes refused" << std::endl;
    RecordProperty("lost", m_lost);
    EXPECT_EQ(m_lost, 0);
#ifndef Q_OS_WIN
    EXPECT_EQ(m_refused, 0);
    EXPECT_EQ(m_refusedRenames, 0);
#endif
    fs::remove(m_name);
    fs::remove(m_other);
    EXPECT_TRUE(fs::is_empty(m_directory.path().toStdString())) << "the probe leaves nothing behind";
}

} // namespace
