// WebAssembly as it is built here has one thread for each instance: what src/base/lock.h asks of
// threads is nothing.
#pragma once

typedef int pthread_t, pthread_mutex_t;

#define PTHREAD_MUTEX_INITIALIZER 0
enum { PTHREAD_CANCEL_ENABLE, PTHREAD_CANCEL_DISABLE };

inline pthread_t pthread_self() { return 1; }
inline int pthread_mutex_lock(pthread_mutex_t*) { return 0; }
inline int pthread_mutex_unlock(pthread_mutex_t*) { return 0; }
inline int pthread_setcancelstate(int, int*) { return 0; }
inline int pthread_atfork(void (*)(), void (*)(), void (*)()) { return 0; }
