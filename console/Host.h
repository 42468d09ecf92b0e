#pragma once

#include "console/Options.h"
#include "figures/Platform.h"

#include <memory>
#include <string>

namespace ostrelum::console {

/// The machine that a command tells of, as the system that the console runs on gives it.
class HostedMachine {
public:
    virtual ~HostedMachine() = default;

    /// What the program asks of a machine, and the services that neither a window nor the
    /// management service gives; the other fields are empty. They live as long as this object.
    virtual Platform services() = 0;

    /// A management service for the machine; with pseudonyms for what identifies somebody, if the
    /// options say so. Throws Failure if there is none.
    virtual std::unique_ptr<ManagementService> management_service() = 0;

    /// A shell object for the machine whose values are kept by another one.
    virtual std::unique_ptr<Shell> shell_over(std::unique_ptr<Shell> stored) = 0;
};

/// What the console asks the system that it runs on.
class Host {
public:
    virtual ~Host() = default;

    /// The machine that the options name. Throws Failure if it is not there.
    virtual std::unique_ptr<HostedMachine> open(const Options& options) = 0;

    /// Whether machines can be recorded here, and shown from a recording.
    virtual bool knows_recordings() const = 0;

    /// Copies what is read of the machine into a new folder. Throws Failure if that does not
    /// succeed; nothing of the folder is then there.
    virtual void record(const Options& options, const std::string& folder) = 0;
};

} // namespace ostrelum::console
