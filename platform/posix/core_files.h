#pragma once

namespace gsm {

/// From now on no core file of this process, and of those that it starts, is written or handed to a
/// collector of them: the PINs and passwords in the boxes would be in it. Debuggers aren't
/// hindered.
void leaveNoCoreFile();

}  // namespace gsm
