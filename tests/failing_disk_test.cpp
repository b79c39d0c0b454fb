#include "failing_jobs.h"

namespace ostrane {

const std::pair<call_fault, std::string> faults[] = {
    {{.reason = ENOSPC}, "the disk is full"},
    {{.reason = ENOSPC, .lasting = true}, "the disk is full"},
    {{.reason = EIO}, "Input/output error"},
    {{.reason = EIO, .lasting = true}, "Input/output error"},
    {{.kind = call_fault::lies, .reason = EIO}, "Input/output error"},
    {{.kind = call_fault::interrupted}, "Interrupted"},
    {{.reason = EACCES}, "access is not allowed"},
    {{.reason = EPERM, .lasting = true}, "access is not allowed"},
    {{.reason = EROFS}, "the disk cannot be written to"},
    {{.reason = EBUSY}, "it is in use"},
    {{.kind = call_fault::does_nothing}, "Input/output error"}};

// Each file call fails in turn. Each file is then the old one or the complete new one, a failure is
// reported with its reason, and a reported success is one.
TEST_F(failing_disk_test, FaultsLeaveTheOldOrTheCompleteNewFile) {
  int tried = 0;
  for (const file_job& job : jobs) {
    prepare(job);
    const job_result before = result_of([] {});
    const job_result done = result_of(job.job);
    for (const auto& [fault, words] : faults) {
      for (int at = 0;; ++at, ++tried) {
        prepare(job);
        job_result after;
        failing_calls failing(at, fault);
        after = result_of(job.job);
        if (!failing.happened()) break;
        const std::string& call = failing.calls[static_cast<std::size_t>(at)];
        SCOPED_TRACE(testing::Message()
                     << &job - jobs.data() << call << at << fault.lasting << words);
        remove_leftovers(after.files, before.files, fault, call);
        expect_complete_files(after.files, before.files, done.files);
        const bool is_success =
            fault.kind == call_fault::interrupted ||
            (fault.kind == call_fault::lies && call == "replace" && !job.may_misreport_rename) ||
            (fault.kind == call_fault::does_nothing && call != "write_some" && call != "replace");
        check(job, call, words, is_success, after, done);
      }
    }
  }
  RecordProperty("faults", tried);
  EXPECT_GT(tried, 1000);
}

}  // namespace ostrane
