# SPDX-License-Identifier: Apache-2.0
# Into an empty directory, so that nothing is found there which is not installed any more.
file(REMOVE_RECURSE "${PREFIX}")
execute_process(
  COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${PREFIX}"
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
