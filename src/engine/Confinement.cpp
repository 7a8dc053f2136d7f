#include "engine/Confinement.h"

#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

namespace sonavel {

namespace {

/// The kernel's structure of this name, newer fields included.
struct RulesetAttributes {
    std::uint64_t handledFileAccess = 0;
    std::uint64_t handledNetworkAccess = 0;
    std::uint64_t scoped = 0;
};

/// Scopes of the sixth version: abstract sockets and signals of processes outside.
constexpr std::uint64_t scopeAbstractSockets = 1U << 0U;
constexpr std::uint64_t scopeSignals = 1U << 1U;

/// The rights that the second, third and fifth version brought.
constexpr std::uint64_t rightRefer = 1U << 13U;
constexpr std::uint64_t rightTruncate = 1U << 14U;
constexpr std::uint64_t rightControlDevice = 1U << 15U;

constexpr std::uint64_t allRightsOfTheFirstVersion = (1U << 13U) - 1;
constexpr std::uint64_t readFile = LANDLOCK_ACCESS_FS_READ_FILE;
constexpr std::uint64_t readAll = readFile | LANDLOCK_ACCESS_FS_READ_DIR;
constexpr std::uint64_t useDevice = readFile | LANDLOCK_ACCESS_FS_WRITE_FILE | rightControlDevice;
constexpr std::uint64_t useSharedMemory = readAll | LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_MAKE_REG
    | LANDLOCK_ACCESS_FS_REMOVE_FILE | rightTruncate;
constexpr std::uint64_t fileRights = readFile | LANDLOCK_ACCESS_FS_WRITE_FILE | rightTruncate | rightControlDevice;

struct Rule {
    std::string path;
    std::uint64_t rights;
};

std::string environmentPath(const char* variable, const std::string& tail)
{
    const char* folder = std::getenv(variable);
    return folder != nullptr && *folder == '/' ? folder + tail : std::string();
}

std::vector<Rule> rules()
{
    std::vector<Rule> rules{
        {"/usr", readAll},
        {"/lib", readAll},
        {"/lib64", readAll},
        {"/etc", readAll},
        // Where the system keeps its name servers.
        {"/run/systemd/resolve", readAll},
        {"/run/NetworkManager", readAll},
        {"/run/resolvconf", readAll},
        {"/var/lib/dbus/machine-id", readFile},
        {"/sys/devices/system/cpu", readAll},
        {"/proc/self", readAll},
        {"/dev/null", useDevice},
        {"/dev/zero", readFile},
        {"/dev/random", readFile},
        {"/dev/urandom", readFile},
        {"/dev/snd", useDevice | LANDLOCK_ACCESS_FS_READ_DIR},
        {"/dev/shm", useSharedMemory},
        {environmentPath("XDG_RUNTIME_DIR", "/pulse"), readAll},
        {environmentPath("XDG_CONFIG_HOME", "/pulse/cookie"), readFile},
        {environmentPath("HOME", "/.config/pulse/cookie"), readFile},
        {environmentPath("PULSE_COOKIE", ""), readFile},
    };
    for (const char* socket : {"/pipewire-0", "/pipewire-0-manager"})
        rules.push_back({environmentPath("XDG_RUNTIME_DIR", socket), readFile | LANDLOCK_ACCESS_FS_WRITE_FILE});
    return rules;
}

std::uint64_t rightsOfVersion(long version)
{
    std::uint64_t rights = allRightsOfTheFirstVersion;
    if (version >= 2)
        rights |= rightRefer;
    if (version >= 3)
        rights |= rightTruncate;
    if (version >= 5)
        rights |= rightControlDevice;
    return rights;
}

/// A descriptor of the rule set, −1 on failure.
int createRuleset(const RulesetAttributes& attributes, long version)
{
    const std::size_t size = version >= 6 ? sizeof attributes : sizeof attributes.handledFileAccess;
    return static_cast<int>(syscall(SYS_landlock_create_ruleset, &attributes, size, 0));
}

/// A path that is not there needs no rule.
void allow(int ruleset, const Rule& rule, std::uint64_t handled)
{
    const int file = rule.path.empty() ? -1 : open(rule.path.c_str(), O_PATH | O_CLOEXEC);
    if (file < 0)
        return;
    struct stat status { };
    const bool isFolder = fstat(file, &status) == 0 && S_ISDIR(status.st_mode);
    landlock_path_beneath_attr beneath{};
    beneath.allowed_access = rule.rights & handled & (isFolder ? handled : fileRights);
    beneath.parent_fd = file;
    (void)syscall(SYS_landlock_add_rule, ruleset, LANDLOCK_RULE_PATH_BENEATH, &beneath, 0);
    close(file);
}

/// A stream that makes a decoder take memory without end takes the engine down, and nothing else.
void boundMemory()
{
    constexpr rlim_t growth = rlim_t{1} << 30U;
    std::ifstream figures("/proc/self/statm");
    std::array<rlim_t, 6> pages{};
    for (rlim_t& figure : pages)
        figures >> figure;
    if (!figures)
        return;
    const rlim_t limit = pages.back() * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + growth;
    const rlimit bound{limit, limit};
    (void)setrlimit(RLIMIT_DATA, &bound);
}

} // namespace

bool enterSandbox()
{
    const rlimit noCoreDumps{0, 0};
    (void)setrlimit(RLIMIT_CORE, &noCoreDumps);
    boundMemory();
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0)
        return false;
    const long version = syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1)
        return false;

    RulesetAttributes attributes;
    attributes.handledFileAccess = rightsOfVersion(version);
    attributes.scoped = version >= 6 ? scopeAbstractSockets | scopeSignals : 0;
    const int ruleset = createRuleset(attributes, version);
    if (ruleset < 0)
        return false;
    for (const Rule& rule : rules())
        allow(ruleset, rule, attributes.handledFileAccess);
    const bool isConfined = syscall(SYS_landlock_restrict_self, ruleset, 0) == 0;
    close(ruleset);
    return isConfined;
}

} // namespace sonavel
