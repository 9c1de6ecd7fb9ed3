# Compile options every target of the project shares, gathered in one interface
# target. Warnings are strict here and become errors only in the presets, so that
# a consumer's newer compiler never breaks the consumer's build.

add_library(ox_compile_options INTERFACE)
target_compile_features(ox_compile_options INTERFACE cxx_std_17)

if(MSVC)
  target_compile_options(ox_compile_options INTERFACE /W4 /fp:strict /utf-8)
else()
  target_compile_options(
    ox_compile_options
    INTERFACE -Wall
              -Wextra
              -Wpedantic
              -Wshadow
              -Wconversion
              # Results are the same bits on every machine: no fused multiply-add,
              # no reassociation.
              -ffp-contract=off
              -fno-fast-math)
endif()
