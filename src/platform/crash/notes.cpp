#include "platform/crash/notes.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <elf.h>
#include <fstream>
#include <iterator>
#include <link.h>
#include <sys/procfs.h>
#include <unistd.h>

namespace quendra {

namespace {

constexpr std::size_t noteAlignment = 4;

std::string fileContent(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

template <class T>
std::string_view bytesOf(const T& value) {
    return {reinterpret_cast<const char*>(&value), sizeof(value)};
}

void pad(std::string& notes) {
    notes.resize((notes.size() + noteAlignment - 1) / noteAlignment * noteAlignment);
}

void addNote(std::string& notes, Elf64_Word type, std::string_view content) {
    // Its closing NUL is part of a name.
    constexpr char owner[] = "CORE";
    const ElfW(Nhdr)
        header = {Elf64_Word{sizeof(owner)}, static_cast<Elf64_Word>(content.size()), type};
    notes += bytesOf(header);
    notes.append(owner, sizeof(owner));
    pad(notes);
    notes += content;
    pad(notes);
}

template <std::size_t Size>
void copyText(char (&field)[Size], std::string_view text) {
    std::ranges::copy(text.substr(0, Size - 1), field);
}

// The first fields of /proc/PID/stat behind the name, which may itself hold brackets and blanks.
struct Status {
    char state = 'R';
    pid_t parent = 0;
    pid_t group = 0;
    pid_t session = 0;
};

Status statusOf(const std::string& folder) {
    Status status;
    const std::string text = fileContent(folder + "/stat");
    const std::size_t name = text.rfind(')');
    if (name == std::string::npos) return status;
    std::sscanf(text.c_str() + name + 1, " %c %d %d %d", &status.state, &status.parent,
                &status.group, &status.session);
    return status;
}

elf_prpsinfo processInfo(const std::string& folder, pid_t process) {
    const Status status = statusOf(folder);
    elf_prpsinfo info = {};
    info.pr_sname = status.state;
    info.pr_uid = ::getuid();
    info.pr_gid = ::getgid();
    info.pr_pid = process;
    info.pr_ppid = status.parent;
    info.pr_pgrp = status.group;
    info.pr_sid = status.session;
    std::string name = fileContent(folder + "/comm");
    if (!name.empty()) name.pop_back();
    copyText(info.pr_fname, name);
    std::string arguments = fileContent(folder + "/cmdline");
    std::ranges::replace(arguments, '\0', ' ');
    copyText(info.pr_psargs, arguments);
    return info;
}

std::string threadNotes(const StoppedThread& thread, const Status& process, int signal) {
    elf_prstatus status = {};
    status.pr_info.si_signo = signal;
    status.pr_cursig = static_cast<short>(signal);
    status.pr_pid = thread.id;
    status.pr_ppid = process.parent;
    status.pr_pgrp = process.group;
    status.pr_sid = process.session;
    std::memcpy(&status.pr_reg, &thread.general, sizeof(status.pr_reg));
    std::string notes;
    addNote(notes, NT_PRSTATUS, bytesOf(status));
    return notes;
}

// How many files, the unit of their offsets, where each lies, and all names.
std::string fileTable(const std::vector<Mapping>& mappings) {
    const auto pageSize = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    std::string table;
    std::string names;
    std::size_t count = 0;
    for (const Mapping& mapping : mappings) {
        if (!mapping.isFile()) continue;
        table += bytesOf(mapping.start);
        table += bytesOf(mapping.end);
        table += bytesOf(mapping.fileOffset / pageSize);
        names.append(mapping.name.c_str(), mapping.name.size() + 1);
        ++count;
    }
    return std::string(bytesOf(count)).append(bytesOf(pageSize)) + table + names;
}

}  // namespace

std::string crashNotes(const CrashRecord& record, const StoppedProcess& process,
                       const std::vector<Mapping>& mappings) {
    const std::string folder = "/proc/" + std::to_string(process.id());
    const Status status = statusOf(folder);
    std::string faulting;
    std::string others;
    for (const StoppedThread& thread : process.threads()) {
        if (thread.id == record.thread) {
            faulting = threadNotes(thread, status, record.signal.si_signo);
        } else {
            others += threadNotes(thread, status, 0);
        }
    }
    addNote(faulting, NT_PRPSINFO, bytesOf(processInfo(folder, process.id())));
    addNote(faulting, NT_SIGINFO, bytesOf(record.signal));
    addNote(faulting, NT_AUXV, fileContent(folder + "/auxv"));
    addNote(faulting, NT_FILE, fileTable(mappings));
    return faulting + others;
}

}  // namespace quendra
