# 32-bit x86 by the host's own compiler (package g++-multilib).
set(CMAKE_C_FLAGS_INIT -m32)
set(CMAKE_CXX_FLAGS_INIT -m32)
