// SPDX-License-Identifier: MIT
// Preloaded into ippeveprinter, which would listen on every network and announce itself there: it listens on the
// loopback alone, and tells nobody. scripts/driverless-printer compiles it.
#define _GNU_SOURCE
#include <dlfcn.h>
#include <netinet/in.h>
#include <string.h>
#include <sys/socket.h>

int bind(int socket, const struct sockaddr* address, socklen_t length)
{
    int (*next)(int, const struct sockaddr*, socklen_t) =
        (int (*)(int, const struct sockaddr*, socklen_t))dlsym(RTLD_NEXT, "bind");
    struct sockaddr_storage local;
    memset(&local, 0, sizeof(local));
    if (length > sizeof(local))
        length = sizeof(local);
    memcpy(&local, address, length);
    if (local.ss_family == AF_INET)
        ((struct sockaddr_in*)&local)->sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    else if (local.ss_family == AF_INET6)
        ((struct sockaddr_in6*)&local)->sin6_addr = in6addr_loopback;
    return next(socket, (struct sockaddr*)&local, length);
}

// The service discovery: what the printer calls succeeds and does nothing.
static int nothing;

void* avahi_threaded_poll_new(void) { return &nothing; }
void* avahi_threaded_poll_get(void* poll) { return poll; }
int avahi_threaded_poll_start(void* poll) { return poll ? 0 : -1; }
void avahi_threaded_poll_lock(void* poll) { (void)poll; }
void avahi_threaded_poll_unlock(void* poll) { (void)poll; }

void* avahi_client_new(const void* poll, int flags, void* callback, void* data, int* error)
{
    (void)poll, (void)flags, (void)callback, (void)data;
    if (error)
        *error = 0;
    return &nothing;
}

int avahi_client_errno(void* client) { return client ? 0 : -1; }
const char* avahi_client_get_host_name_fqdn(void* client) { return client ? "localhost" : ""; }

void* avahi_entry_group_new(void* client, void* callback, void* data)
{
    (void)client, (void)callback, (void)data;
    return &nothing;
}

int avahi_entry_group_free(void* group) { return group ? 0 : -1; }
int avahi_entry_group_commit(void* group) { return group ? 0 : -1; }
int avahi_entry_group_add_service_strlst(void* group, ...) { return group ? 0 : -1; }
int avahi_entry_group_add_service_subtype(void* group, ...) { return group ? 0 : -1; }
