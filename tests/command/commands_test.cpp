#include "transcript.h"

using namespace ostrane;

using commands_test = transcript_test;

TEST_F(commands_test, PrintsItsTranscript) { replay("commands.txt"); }
