#pragma once

#include "Core/Sampling/ProcGroup.h"

#include <QStringView>

#include <initializer_list>

/// What is known of single programs, as data: one more program is one more name in a list.
namespace KnownPrograms::Table {

/// Names with ", " between them, in alphabetical order.
using Names = QStringView;

/// Programs that the fixed patterns of `ProcessGrouper` do not know, and all that run MCP servers. Each name
/// is the last component of an executable, a script without its ending, a module or a package, in lower case;
/// one that begins with a dot is a folder that its program makes.
struct Row {
    ProcGroup group;
    bool hostsServers;
    Names names;
};

inline constexpr std::initializer_list<Row> programs = {
    // Agents that run servers of their own.
    {ProcGroup::agents, true,
     u"aider, amazon-q, amp, auggie, claude, claude-code, claude-desktop, cline, codebuff, codex, "
     u"continue, copilot, crush, cursor-agent, droid, forgecode, gemini, gemini-cli, goose, goosed, "
     u"gptme, iflow, kilo, kilocode, kimi, kiro-cli, letta, librechat, mistral-vibe, nanocoder, opencode, "
     u"openhands, openinterpreter, plandex, qchat, qodo, qwen, qwen-code, rovodev, swe-agent, vibe"},
    // Models that run here, and the helpers that write code with one.
    {ProcGroup::agents, false,
     u"aichat, anythingllm, anythingllmdesktop, cody-agent, copilot-agent, copilot-language-server, exo, "
     u"gpt4all, jan, koboldcpp, litellm, llama-bench, llama-cli, llama-run, llama-server, llama-swap, "
     u"llamafile, lms, local-ai, localai, mlc_llm, msty, open-webui, sgpt, supermaven, tabby-agent, "
     u"tabnine, text-generation-launcher, text-generation-server, tgpt, whisper-server"},
    // Editors that run agents.
    {ProcGroup::ides, true,
     u".cursor-server, .positron-server, .vscode-server, .vscode-server-insiders, .vscodium-server, "
     u".windsurf-server, .zed_server, antigravity, clion, clion64, code, code-insiders, code-oss, "
     u"code-server, codium, cursor, datagrip, dataspell, emacs, fleet, goland, idea, kiro, nvim, "
     u"openvscode-server, phpstorm, positron, pycharm, rider, rubymine, rustrover, studio, theia, trae, "
     u"void, vscodium, webstorm, windsurf, zed, zed-editor"},
    // Other editors, and what editors start to understand a language.
    {ProcGroup::ides, false,
     u".cursor, .vscode, .vscode-oss, .windsurf, anjuta, arduino, arduino-ide, bluefish, brackets, ccls, "
     u"clangd, cpptools, cpptools-srv, designer, designer-qt6, eclipse, elixir-ls, featherpad, gambas3, "
     u"geany, gedit, ghostwriter, gnome-builder, gnome-text-editor, gopls, helix, hx, intelephense, "
     u"jdtls, jed, joe, jupyter-lab, jupyter-notebook, kak, kate, kdevelop, kwrite, l3afpad, lapce, "
     u"lazarus, leafpad, linguist, lite-xl, lua-language-server, marksman, mcedit, micro, monodevelop, "
     u"mousepad, nano, neovide, netbeans, notepadqq, omnisharp, pico, pluma, pulsar, pylsp, pyright, "
     u"pyright-langserver, qtcreator, rsession, rstudio, ruby-lsp, rust-analyzer, "
     u"rust-analyzer-proc-macro-srv, scite, solargraph, spyder, subl, texlab, texstudio, thonny, "
     u"tsserver, typescript-language-server, vi, vtsls, xed, zls"},
    {ProcGroup::terminals, false,
     u"abduco, aterm, byobu, contour, cool-retro-term, csh, dvtm, elvish, eterm, foot, footclient, "
     u"gnome-console, guake, havoc, kgx, konsole, ksh, ksh93, lxterm, mksh, mlterm, mosh-client, "
     u"mosh-server, nu, nushell, ptyxis, ptyxis-agent, pwsh, rbash, rio, rxvt, rxvt-unicode, sakura, st, "
     u"tcsh, terminator, terminology, termite, tilda, tilix, tmate, ttyd, urxvt, urxvtd, uxterm, "
     u"waveterm, xonsh, xterm, yakuake, yash, zellij, zutty"},
    {ProcGroup::browsers, false,
     u"angelfish, badwolf, basilisk, dillo, elinks, epiphany, epiphany-browser, falkon, firedragon, "
     u"floorp, geckodriver, icecat, iceweasel, konqueror, ladybird, librewolf, links, links2, luakit, "
     u"lynx, midori, mullvad-browser, mullvadbrowser, netsurf, netsurf-gtk, netsurf-gtk3, nyxt, palemoon, "
     u"qutebrowser, seamonkey, servo, surf, thorium, thorium-browser, tor-browser, vimb, w3m, waterfox, "
     u"yandex-browser, yandex_browser, zen, zen-bin"},
    // Containers, their orchestration and virtual machines.
    {ProcGroup::containers, false,
     u"aardvark-dns, apptainer, buildah, buildctl, buildkitd, calico-node, cilium-agent, "
     u"cloud-hypervisor, conmon, conmonrs, coredns, cri-dockerd, crictl, crio, crun, ctr, distrobox, "
     u"firecracker, flanneld, fuse-overlayfs, helm, incus, incus-agent, incusd, k0s, k3d, k3s, k3s-agent, "
     u"k3s-server, k9s, kata-runtime, kind, kube-apiserver, kube-controller-manager, kube-proxy, "
     u"kube-scheduler, kubectl, kubelet, libvirtd, lxc, lxc-monitord, lxc-start, lxcfs, lxd, machinectl, "
     u"microk8s, minikube, multipass, multipassd, nerdctl, netavark, pasta, pasta.avx2, rootlesskit, "
     u"rootlessport, runsc, singularity, skopeo, slirp4netns, systemd-machined, systemd-nspawn, toolbox, "
     u"vagrant, vboxheadless, vboxsvc, virt-manager, virtiofsd, virtlockd, virtlogd, virtqemud, "
     u"virtualbox, virtualboxvm, vmware, vmware-vmx, waydroid, youki"},
};

/// Names and folders that contain a pattern of a group and are something else: that group's test skips them.
/// "*" at either end stands for any text, and "~/" for the user's home folder.
struct FalseFriends {
    ProcGroup group;
    Names names;
};

inline constexpr std::initializer_list<FalseFriends> falseFriends = {
    {ProcGroup::agents, u"*raider*"},
    {ProcGroup::ides,
     u"*barcode*, *codec*, *decode*, *encode*, *geocode*, *qrcode*, *transcod*, *xcursor*, atomic*, "
     u"codebuff*, fleetd, ideamaker*, ideapad*, kilocode*, nanocoder*, nova-*, opencode*, qwen-code*, "
     u"traefik*, vimb, vimpc, ~/code"},
    {ProcGroup::terminals,
     u"*hypervisor*, *screencast*, *screenlock*, *screenrecorder*, *screensaver*, *screenshot*, "
     u"*screenshooter*, *touchscreen*, cloudflare-warp, hyperfine, hyperion*, hyperkube, hypervfcopyd, "
     u"hypervkvpd, hypervvssd, kscreen*, screenkey, warp-svc, warp-taskbar"},
    {ProcGroup::browsers,
     u"*-media-*, *aarch64*, *barcode*, *dialog*, *knowledge*, *ledger*, *operator*, *research*, "
     u"*search*, arc_summary, archive*, archlinux*, arcstat, chrome-sandbox, chrome_crashpad*, dia, "
     u"dia-normal, file-archiver, gsd-*, gvfsd-*, hedgedoc*, marco, media, mediainfo*, mediamtx, "
     u"nightly-*, nvidia*, parcellite, plex media *, plexmediaserver, radiance, rust-nightly*, zbarcam*"},
    {ProcGroup::containers, u"*climate*, *truncat*, qemu-ga, runcon"},
};

} // namespace KnownPrograms::Table
