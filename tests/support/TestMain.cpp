#include "support/TestRun.h"

int main(int argc, char** argv)
{
    return morvane::test::runTests(argc, argv);
}
