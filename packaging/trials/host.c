#include <stdio.h>
#include <quorvel.h>

int main(void) {
    float t = 20.0f, rh = 50.0f;
    printf("%.1f\n", PSVP(&t, &rh));
    return 0;
}
