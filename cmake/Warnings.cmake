# What every target of this project is compiled with.
#
# -ffp-contract=off: the order of arithmetic is behaviour, a fused multiply-add would change it.
add_library(project_options INTERFACE)
target_compile_options(project_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -ffp-contract=off)
