"""Accepts connections and never answers. Prints its port."""
import signal
import socket

server = socket.create_server(("127.0.0.1", 0), backlog=64)
print(server.getsockname()[1], flush=True)
accepted = []
signal.signal(signal.SIGTERM, signal.SIG_DFL)
while True:
    accepted.append(server.accept()[0])
