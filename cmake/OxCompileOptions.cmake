# How every target of the project is compiled, gathered in one interface target, and what those who
# use the library have to keep. Warnings are strict here and become errors only in the presets of
# those who develop, so that a newer compiler never breaks anybody's build.

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

# The vectors are inline, so their arithmetic is compiled by those who use them, too. A target with
# the property OX_ALLOW_CONTRACTION goes without.
set(OX_EXACT_ARITHMETIC "-ffp-contract=off")
set(refused "$<BOOL:$<TARGET_PROPERTY:OX_ALLOW_CONTRACTION>>")
set(OX_CONSUMER_OPTIONS
    "$<$<AND:$<COMPILE_LANG_AND_ID:CXX,GNU,Clang,AppleClang>,$<NOT:${refused}>>:${OX_EXACT_ARITHMETIC}>"
)
