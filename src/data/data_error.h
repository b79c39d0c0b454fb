#pragma once

#include <string>
#include <utility>

#include "files/failure.h"

namespace ostrane {

// Invalid data: a damaged archive, a list that is too long, a file that changed during a job.
struct data_error : files::error {
  // `reason` is a sentence.
  explicit data_error(std::string reason) : error({u8"", std::move(reason)}) {}
  // Subject and reason together are one.
  data_error(std::u8string subject, std::string reason)
      : error({std::move(subject), std::move(reason)}) {}
};

}  // namespace ostrane
