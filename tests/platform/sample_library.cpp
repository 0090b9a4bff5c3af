// SPDX-License-Identifier: GPL-3.0-or-later
extern "C" __attribute__((visibility("default"))) int SampleAnswer() {
    return 42;
}
