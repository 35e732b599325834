"""The preview's questions on a pseudo terminal: PROGRAM PAGES USER PASSWORD."""
import os, pty, re, select, signal, sys, termios, threading, time, urllib.request

program, pages, user, password = sys.argv[1:]


class Terminal:
    def __init__(self):
        self.seen = ""
        self.pid, self.tty = pty.fork()
        if self.pid == 0:
            os.execl(program, program, "preview", pages)

    def until(self, text):
        end = time.time() + 15
        while text not in self.seen:
            assert time.time() < end, f"waited for {text!r}, saw {self.seen!r}"
            if select.select([self.tty], [], [], 0.2)[0]:
                self.seen += os.read(self.tty, 4096).decode()

    def echoes(self):
        return bool(termios.tcgetattr(self.tty)[3] & termios.ECHO)

    def type(self, line):
        os.write(self.tty, (line + "\n").encode())

    def ask(self):
        """Asks for records, which needs the database, without waiting for the answer."""
        self.until("\n")
        address = re.search(r"http://\S+/", self.seen).group(0)
        self.page = []

        def get():
            try:
                self.page.append(urllib.request.urlopen(address + "CUSTOMER.hts", timeout=15).read().decode())
            except OSError as error:
                self.page.append(str(error))

        self.thread = threading.Thread(target=get)
        self.thread.start()

    def end(self):
        os.kill(self.pid, signal.SIGINT)
        _, status = os.waitpid(self.pid, 0)
        self.thread.join()
        return status


one = Terminal()
one.ask()
one.until("User name for")
one.type(user)
one.until("Password: ")
assert not one.echoes(), "the password would be seen"
one.type(password)
one.thread.join()
assert password not in one.seen, "the password was seen"
assert "row 1 of 14" in one.page[0], one.page[0][:400]
assert one.echoes() and one.end() == 0

two = Terminal()
two.ask()
two.until("User name for")
two.type(user)
two.until("Password: ")
began = time.time()
status = two.end()
assert two.echoes(), "the terminal stayed silent"
assert status == 0 and time.time() - began < 5, (status, time.time() - began)
