# The settings that every target of the project shares.
add_library(gsm_settings INTERFACE)
target_include_directories(gsm_settings INTERFACE ${PROJECT_SOURCE_DIR})
# Properties that a control's design does not name keep their defaults: that is the point of the
# designated initialisers, so the warning about missing ones is off. And when it optimises, g++ 12
# takes texts that are moved on for uninitialised or overlapping ones; clang has no such warnings.
target_compile_options(
  gsm_settings
  INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
            -Wno-missing-field-initializers
            "$<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized;-Wno-restrict>")

if(GSM_SANITIZERS)
  add_compile_options(-fsanitize=${GSM_SANITIZERS} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${GSM_SANITIZERS})
endif()
