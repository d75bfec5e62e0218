// Runs a program that must open no network connection:  without_network PROGRAM [ARGUMENT...]
// The kernel kills it at the first socket of another kind than the local one, by which it reaches
// the desktop. For Linux.

#include <array>
#include <cstddef>
#include <cstdio>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr sock_filter Step(unsigned short code, unsigned value, unsigned char ifTrue = 0,
                           unsigned char ifFalse = 0) {
    return {code, ifTrue, ifFalse, value};
}

bool ForbidNetwork() {
    constexpr unsigned short kLoad = BPF_LD | BPF_W | BPF_ABS;
    constexpr unsigned short kIsEqual = BPF_JMP | BPF_JEQ | BPF_K;
    constexpr unsigned short kReturn = BPF_RET | BPF_K;
    std::array<sock_filter, 6> steps = {
        Step(kLoad, offsetof(seccomp_data, nr)),
        Step(kIsEqual, SYS_socket, 0, 3),
        Step(kLoad, offsetof(seccomp_data, args)), // the kind of the socket
        Step(kIsEqual, AF_UNIX, 1, 0),
        Step(kReturn, SECCOMP_RET_KILL_PROCESS),
        Step(kReturn, SECCOMP_RET_ALLOW),
    };
    const sock_fprog filter = {static_cast<unsigned short>(steps.size()), steps.data()};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2)
        return 2;
    if (!ForbidNetwork()) {
        std::perror("the kernel takes no filter");
        return 2;
    }
    execvp(argv[1], argv + 1);
    std::perror(argv[1]);
    return 2;
}
