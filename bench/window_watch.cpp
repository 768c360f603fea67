// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// window_watch PROGRAM [ARGUMENT...]: starts a program and tells when its window shows what.
//
// Prints one line: seconds from the start until a window is mapped, until a first photo is seen, until the
// screen is full of photos, and the program's memory in MB then. Photos are told from everything else by
// their colour, magenta; the window is made as large as the screen. A screen is full when no photo has been
// added for two seconds. Needs an X server of its own, without a window manager.
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace
{

using Clock = std::chrono::steady_clock;

constexpr double kPatience = 90;
constexpr double kQuiet = 2;
constexpr int kFirstPhoto = 1500;  // pixels
constexpr int kSmallestWindow = 200;

class CScreen
{
public:
    CScreen() : display(XOpenDisplay(nullptr))
    {
        if (display) {
            XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
            XSync(display, False);
        }
    }
    ~CScreen()
    {
        if (display)
            XCloseDisplay(display);
    }
    CScreen(const CScreen&) = delete;
    CScreen& operator=(const CScreen&) = delete;

    bool IsOpen() const { return display != nullptr; }

    // Whether a window has been mapped since the last call; it is made to fill the screen.
    bool WindowAppeared()
    {
        bool appeared = false;
        while (XPending(display) > 0) {
            XEvent event;
            XNextEvent(display, &event);
            XWindowAttributes facts{};
            if (event.type != MapNotify || !XGetWindowAttributes(display, event.xmap.window, &facts) ||
                facts.width < kSmallestWindow || facts.override_redirect)
                continue;
            appeared = true;
            XMoveResizeWindow(display, event.xmap.window, 0, 0, Width(), Height());
            XSetInputFocus(display, event.xmap.window, RevertToPointerRoot, CurrentTime);
            XFlush(display);
        }
        return appeared;
    }

    int PhotoPixels() const
    {
        XImage* image =
            XGetImage(display, DefaultRootWindow(display), 0, 0, Width(), Height(), AllPlanes, ZPixmap);
        int count = 0;
        for (int y = 0; y < image->height; ++y) {
            const auto* row = reinterpret_cast<const std::uint32_t*>(
                image->data + static_cast<std::ptrdiff_t>(y) * image->bytes_per_line);
            count += static_cast<int>(std::count_if(row, row + image->width, [](std::uint32_t pixel) {
                const auto red = static_cast<int>(pixel >> 16 & 0xFF);
                const auto green = static_cast<int>(pixel >> 8 & 0xFF);
                const auto blue = static_cast<int>(pixel & 0xFF);
                return red - green > 80 && blue - green > 60;
            }));
        }
        XDestroyImage(image);
        return count;
    }

private:
    unsigned Width() const { return static_cast<unsigned>(DisplayWidth(display, 0)); }
    unsigned Height() const { return static_cast<unsigned>(DisplayHeight(display, 0)); }

    Display* display;
};

struct Result {
    double window = -1;
    double firstPhoto = -1;
    double fullScreen = -1;
};

Result Watch(CScreen& screen, Clock::time_point start)
{
    Result result;
    int most = 0;
    const auto now = [start] { return std::chrono::duration<double>(Clock::now() - start).count(); };
    while (now() < kPatience) {
        if (screen.WindowAppeared() && result.window < 0)
            result.window = now();
        const double moment = now();
        const int pixels = screen.PhotoPixels();
        if (pixels > kFirstPhoto && result.firstPhoto < 0)
            result.firstPhoto = moment;
        if (pixels > most + most / 200) {
            most = pixels;
            result.fullScreen = moment;
        }
        if (result.firstPhoto >= 0 && moment - result.fullScreen > kQuiet)
            break;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return result;
}

double ResidentMegabytes(pid_t process)
{
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmRSS:"))
            return std::stod(line.substr(6)) / 1024;
    }
    return -1;
}

}  // namespace

int main(int argc, char** argv)
{
    CScreen screen;
    if (argc < 2 || !screen.IsOpen()) {
        std::fputs("usage: window_watch PROGRAM [ARGUMENT...] (with DISPLAY set)\n", stderr);
        return 2;
    }
    const auto start = Clock::now();
    const pid_t child = fork();
    if (child == 0) {
        // What the program says is not part of the result.
        dup2(STDERR_FILENO, STDOUT_FILENO);
        execvp(argv[1], argv + 1);
        _exit(127);
    }
    const Result result = Watch(screen, start);
    std::printf("%.3f %.3f %.3f %.0f\n", result.window, result.firstPhoto, result.fullScreen,
                ResidentMegabytes(child));
    kill(child, SIGTERM);
    waitpid(child, nullptr, 0);
    return result.fullScreen < 0 ? 1 : 0;
}
