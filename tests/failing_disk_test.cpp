#include "failing_jobs.h"

using namespace ostrane;

// A failure is reported with its reason, and a reported success is one.
TEST_F(failing_disk_test, FaultsLeaveTheOldOrTheCompleteNewFile) {
  int tried = 0;
  for (const file_job& job : jobs) {
    SCOPED_TRACE(&job - jobs.data());
    const auto check_one = [&](const failed_call& failed, const auto& after, const auto& done) {
      const auto kind = failed.fault.kind;
      const bool is_replace = failed.name == "replace";
      const bool is_success =
          kind == call_fault::interrupted ||
          (kind == call_fault::lies && is_replace && !job.may_misreport_rename) ||
          (kind == call_fault::does_nothing && failed.name != "write_some" && !is_replace);
      check(job, failed.name, failed.words, is_success, after, done);
    };
    tried += expect_old_or_new_files(
        root, [&] { prepare(job); }, [&] { return result_of(job.job); }, check_one);
  }
  RecordProperty("faults", tried);
  EXPECT_GT(tried, 1000);
}
